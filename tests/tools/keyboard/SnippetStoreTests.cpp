#include "tools/keyboard/SnippetStore.hpp"

#include <gtest/gtest.h>

#include "portable/MemoryPreferences.hpp"
#include "tools/keyboard/PlaceholderExpander.hpp"

namespace quorvane {
namespace {

TEST(SnippetStore, AFirstRunStartsWithThreeSnippetsAndAStoredListReadsBackExactly) {
    MemoryPreferences preferences;
    const auto first = SnippetStore::load(preferences);
    EXPECT_TRUE(first.readable);
    EXPECT_FALSE(first.stored);
    EXPECT_EQ(first.snippets.size(), 3u);
    EXPECT_FALSE(preferences.object(SnippetStore::kKey)) << "reading stores nothing";

    std::vector<Snippet> list = {{Uuid::random(), ";x\"y", "line\nline\t\\ \u00e9 🙂"},
                                 {Uuid::random(), "", ""}};
    SnippetStore::save(preferences, list);
    const auto data = preferences.data(SnippetStore::kKey);
    ASSERT_TRUE(data);
    const auto json = Json::parse(std::string(data->begin(), data->end()));
    ASSERT_TRUE(json && json->array());
    const Json& element = json->array()->at(0);
    EXPECT_EQ(*element.find("id")->string(), list[0].id.text()) << "upper-case UUID text";
    EXPECT_EQ(*element.find("trigger")->string(), ";x\"y");
    EXPECT_EQ(element.object()->size(), 3u);
    EXPECT_EQ(SnippetStore::load(preferences).snippets, list);
}

TEST(SnippetStore, AnythingUnreadableGivesTheDefaultsAndIsLeftInPlace) {
    for (const PreferenceValue& value :
         {PreferenceValue(PreferenceValue::Data{'[', '1', ']'}), PreferenceValue("[]"),
          PreferenceValue(PreferenceValue::Data{'[', '{', '}', ']'}),
          PreferenceValue(PreferenceValue::Data{0xFF})}) {
        MemoryPreferences preferences;
        preferences.set(SnippetStore::kKey, value);
        const auto loaded = SnippetStore::load(preferences);
        EXPECT_FALSE(loaded.readable);
        EXPECT_EQ(loaded.snippets.size(), 3u);
        EXPECT_EQ(preferences.object(SnippetStore::kKey), value);
    }
    MemoryPreferences empty;
    empty.set(SnippetStore::kKey, PreferenceValue::Data{'[', ']'});
    EXPECT_TRUE(SnippetStore::load(empty).snippets.empty()) << "an emptied list stays empty";
}

TEST(SnippetStore, TenThousandSnippetsWithLongTextsLoad) {
    std::vector<Snippet> list;
    const std::string longText(100 * 1024, 'w');
    for (int i = 0; i < 10000; ++i) {
        list.push_back({Uuid::random(), ";s" + std::to_string(i),
                        i % 100 == 0 ? longText : "text " + std::to_string(i)});
    }
    MemoryPreferences preferences;
    SnippetStore::save(preferences, list);
    const auto loaded = SnippetStore::load(preferences);
    EXPECT_TRUE(loaded.readable);
    EXPECT_EQ(loaded.snippets, list);
}

TEST(PlaceholderExpander, EachPlaceholderIsFilledEverywhereInOrderAndOnlyWhenUsed) {
    int asked = 0;
    const PlaceholderExpander::Values values{[&] { return ++asked, std::string("May 1, 2026"); },
                                             [&] { return ++asked, std::string("9:41 AM"); },
                                             [&] { return ++asked, std::string("{date} copied"); }};
    EXPECT_EQ(
        PlaceholderExpander::expand("{date}, {time}; {date} – {clipboard}{clipboard}", values),
        "May 1, 2026, 9:41 AM; May 1, 2026 – {date} copied{date} copied")
        << "the clipboard's own text is left as it is";
    EXPECT_EQ(asked, 3);
    asked = 0;
    EXPECT_EQ(PlaceholderExpander::expand("{Date} {date {time{time}}", values),
              "{Date} {date {time9:41 AM}");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(PlaceholderExpander::expand("{clipboard}", {}), "") << "no clipboard, nothing";
}

}  // namespace
}  // namespace quorvane
