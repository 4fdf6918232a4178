#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tools/keyboard/ClipText.hpp"
#include "tools/keyboard/ClipTextFinder.hpp"

namespace quorvane {
namespace {

// The finder skips most of the text by looking at two bytes of each place; it must answer
// exactly what folding the whole text and looking for the query would. Random texts of every
// length around the 64-byte steps, in mixed case and scripts, with queries cut from them at
// character boundaries (so most are present, at every offset, up to the last byte), each
// character's case changed at random and now and then one character replaced.
TEST(ClipTextFinder, AgreesWithFoldingTheWholeText) {
    // Each character with its other case; those without case twice.
    static const std::pair<const char*, const char*> characters[] = {
        {"a", "A"}, {"b", "B"}, {"v", "V"},   {"y", "Y"}, {"x", "X"}, {"é", "É"}, {"ж", "Ж"},
        {"ё", "Ё"}, {" ", " "}, {"\n", "\n"}, {".", "."}, {"7", "7"}, {"€", "€"}, {"\xff", "\xff"}};
    std::mt19937 random(11);
    const auto pick = [&] { return random() % std::size(characters); };
    int found = 0;
    int missed = 0;
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::size_t> picked(random() % 200);
        std::string text;
        for (auto& character : picked) {
            character = pick();
            text += random() % 2 == 0 ? characters[character].first : characters[character].second;
        }
        std::string query;
        if (picked.empty() || random() % 4 == 0) {
            query = characters[pick()].first;
        } else {
            const std::size_t from = random() % picked.size();
            const std::size_t count =
                1 + random() % std::min<std::size_t>(60, picked.size() - from);
            const std::size_t replaced = random() % 3 == 0 ? from + random() % count : SIZE_MAX;
            for (std::size_t i = from; i < from + count; ++i) {
                const auto& character = characters[i == replaced ? pick() : picked[i]];
                query += random() % 2 == 0 ? character.first : character.second;
            }
        }
        const std::string folded = ClipText::fold(query);
        const bool expected = ClipText::fold(text).find(folded) != std::string::npos;
        EXPECT_EQ(ClipTextFinder(folded).foundIn(text), expected)
            << "text \"" << text << "\" query \"" << query << "\"";
        (expected ? found : missed) += 1;
    }
    EXPECT_GT(found, 1000);
    EXPECT_GT(missed, 300);
}

TEST(ClipTextFinder, LongTextsQueriesWithoutAsciiAndTheEnds) {
    std::string text(100'000, 'a');
    text += "Plan Summary";
    EXPECT_TRUE(ClipTextFinder(ClipText::fold("plan summary")).foundIn(text));
    EXPECT_FALSE(ClipTextFinder(ClipText::fold("plan summary!")).foundIn(text));
    text.replace(0, 12, "PLAN SUMMARY");
    EXPECT_TRUE(ClipTextFinder(ClipText::fold("aplan")).foundIn("APLAN"));
    EXPECT_TRUE(
        ClipTextFinder(ClipText::fold("ПРИВЕТ")).foundIn(std::string(5000, ' ') + "привет"));
    EXPECT_FALSE(ClipTextFinder(ClipText::fold("привет")).foundIn("приве"));
    EXPECT_TRUE(ClipTextFinder("").foundIn(""));
    // A query longer than the text after folding cannot be in it.
    EXPECT_FALSE(ClipTextFinder(ClipText::fold("ab")).foundIn("a"));
    // A long query with its differing byte near the end must be compared to the end.
    const std::string sentence(3000, 'z');
    EXPECT_FALSE(ClipTextFinder(sentence + "y").foundIn(sentence + "Z" + sentence));
    EXPECT_TRUE(ClipTextFinder(sentence + "y").foundIn(sentence + "Y" + sentence));
}

}  // namespace
}  // namespace quorvane
