#include <gtest/gtest.h>

#include <string>

#include "base/Utf8.hpp"

namespace quorvane {
namespace {

TEST(Utf8, AcceptsOnlyWellFormedSequences) {
    struct Case {
        std::string text;
        std::size_t validPrefix;
    };
    const Case cases[] = {
        {"", 0},
        {"plain", 5},
        {"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
         22},
        {"a\xC1\xBF", 1},              // overlong two-byte form
        {"a\xE0\x9F\xBF", 1},          // overlong three-byte form
        {"a\xF0\x8F\xBF\xBF", 1},      // overlong four-byte form
        {"a\xED\xA0\x80", 1},          // encoded surrogate
        {"a\xF4\x90\x80\x80", 1},      // past U+10FFFF
        {"a\xF8\x88\x80\x80\x80", 1},  // five-byte form
        {"a\x80", 1},                  // stray continuation byte
        {"ab\xE2\x82", 2},             // cut short
        {"ab\xE2\x82x", 2},            // interrupted
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.text));
        EXPECT_EQ(utf8::validPrefixLength(c.text), c.validPrefix);
        EXPECT_EQ(utf8::isValid(c.text), c.validPrefix == c.text.size());
    }
    EXPECT_TRUE(utf8::isTruncatedSequence("\xF0\x9F\x98"));
    EXPECT_FALSE(utf8::isTruncatedSequence("\xF0\x9F\x98x"));
    EXPECT_FALSE(utf8::isTruncatedSequence("\xED\xA0"));
    EXPECT_FALSE(utf8::isTruncatedSequence(""));
}

TEST(Utf8, EncodesAndTruncatesWholeCharacters) {
    const std::pair<char32_t, std::string> encodings[] = {{0x7F, "\x7F"},
                                                          {0x80, "\xC2\x80"},
                                                          {0x7FF, "\xDF\xBF"},
                                                          {0x800, "\xE0\xA0\x80"},
                                                          {0xFFFF, "\xEF\xBF\xBF"},
                                                          {0x10000, "\xF0\x90\x80\x80"},
                                                          {0x10FFFF, "\xF4\x8F\xBF\xBF"},
                                                          {0xD800, "\xEF\xBF\xBD"},
                                                          {0x110000, "\xEF\xBF\xBD"}};
    for (const auto& [codePoint, expected] : encodings) {
        std::string out;
        utf8::appendCodePoint(out, codePoint);
        EXPECT_EQ(out, expected) << static_cast<unsigned>(codePoint);
    }

    const std::string text = "a\xC3\xA9\xF0\x9F\x98\x80z";
    EXPECT_EQ(utf8::truncate(text, 0), "");
    EXPECT_EQ(utf8::truncate(text, 2), "a\xC3\xA9");
    EXPECT_EQ(utf8::truncate(text, 3), "a\xC3\xA9\xF0\x9F\x98\x80");
    EXPECT_EQ(utf8::truncate(text, 10), text);
    EXPECT_EQ(utf8::truncate("\xFF\xFE\xC3\xA9", 3), "\xFF\xFE\xC3\xA9");
}

}  // namespace
}  // namespace quorvane
