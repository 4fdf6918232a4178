#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <utility>

#include "base/Json.hpp"

namespace quorvane {
namespace {

struct Rejection {
    std::string text;
    std::size_t offset;
};

void expectRejected(const Rejection& rejection, JsonLimits limits = {}) {
    SCOPED_TRACE(testing::PrintToString(rejection.text));
    JsonError error;
    EXPECT_FALSE(Json::parse(rejection.text, &error, limits).has_value());
    EXPECT_EQ(error.offset, rejection.offset) << error.message;
    EXPECT_FALSE(error.message.empty());
}

TEST(JsonParse, RejectsMalformedTextWhereTheFaultIs) {
    const Rejection cases[] = {
        {"", 0},
        {"  ", 2},
        {"[1,]", 3},
        {R"({"a":1,})", 7},
        {"[1] x", 4},
        {"nulls", 4},
        {"// c\n1", 0},
        {"[1 /* c */]", 3},
        {"NaN", 0},
        {"-Infinity", 1},
        {"01", 1},
        {"-01", 2},
        {"+1", 0},
        {"1.e5", 2},
        {".5", 0},
        {"1e", 2},
        {"'a'", 0},
        {"trux", 0},
        {"tru", 3},
        {"[1 2]", 3},
        {R"({"a" 1})", 5},
        {R"({1:2})", 1},
        // Numbers too large for a double are refused, not turned into infinity.
        {"[1e400]", 1},
        {"-1e400", 0},
        {std::string(400, '9'), 0},
        // Strings: raw control characters, unknown escapes, lone or mismatched surrogates.
        {"\"a\tb\"", 2},
        {R"("\x")", 1},
        {R"("\u12G4")", 5},
        {R"("\uDC00")", 1},
        {R"("\uD800")", 1},
        {R"("\uD800\u0041")", 1},
        {R"("\uD800\n")", 1},
        {R"({"a":1,"b":2,"a":3})", 13},
        // Ill-formed UTF-8: overlong, encoded surrogate, past U+10FFFF, stray continuation,
        // cut short before the closing quote, and text outside any string.
        {"\"\xC0\x80\"", 1},
        {"\"\xE0\x80\x80\"", 1},
        {"\"\xED\xA0\x80\"", 1},
        {"\"\xF4\x90\x80\x80\"", 1},
        {"\"\xF5\x80\x80\x80\"", 1},
        {"\"a\x80\"", 2},
        {"\"\xE2\x82\"", 1},
        {"\"\xE2\x82", 3},
        {"\xC3\xA9", 0}};
    for (const Rejection& rejection : cases) {
        expectRejected(rejection);
    }
}

TEST(JsonParse, EveryProperPrefixFailsAtItsEnd) {
    const std::string document =
        R"({"a": [1, -2.5e-3, 0, true, false, null], "b\u00e9\ud83d\ude00": "x\"y\\",)"
        "\n\t \"\xC3\xA9\xF0\x9F\x98\x80\": {\"c\": []}}";
    ASSERT_TRUE(Json::parse(document).has_value());
    for (std::size_t length = 0; length < document.size(); ++length) {
        expectRejected({document.substr(0, length), length});
    }
}

TEST(JsonParse, EnforcesDepthAndSizeLimits) {
    const auto nested = [](std::size_t depth) {
        return std::string(depth, '[') + std::string(depth, ']');
    };
    EXPECT_TRUE(Json::parse(nested(64)).has_value());
    expectRejected({nested(65), 64});
    expectRejected({std::string(100000, '['), 64});
    std::string objects;
    for (int i = 0; i < 100000; ++i) {
        objects += R"({"a":)";
    }
    expectRejected({objects, 64 * 5});
    expectRejected({"[1]", 0}, {.maxDepth = 0});

    const std::string text = R"(["abcdef"])";
    EXPECT_TRUE(Json::parse(text, nullptr, {.maxBytes = text.size()}).has_value());
    expectRejected({text, 9}, {.maxBytes = 9});
}

TEST(JsonParse, KeepsIntegersOnlyWhileExact) {
    constexpr std::int64_t kLimit = std::int64_t{1} << 53;
    EXPECT_EQ(Json::parse("9007199254740992")->integer(), kLimit);
    EXPECT_EQ(Json::parse("-9007199254740992")->integer(), -kLimit);
    EXPECT_EQ(Json::parse("-0")->integer(), 0);
    for (const char* text : {"9007199254740993", "-9007199254740993", "18446744073709551616"}) {
        const auto value = Json::parse(text);
        ASSERT_TRUE(value.has_value()) << text;
        EXPECT_EQ(value->kind(), Json::Kind::real) << text;
        EXPECT_EQ(value->number(), std::stod(text)) << text;
    }
    EXPECT_EQ(Json::parse("1.0")->kind(), Json::Kind::real);
    EXPECT_EQ(Json::parse("1E2")->number(), 100.0);
    EXPECT_EQ(Json::parse("1e-400")->number(), 0.0);
    EXPECT_EQ(Json(kLimit).serialize(), "9007199254740992");
    EXPECT_EQ(Json(-kLimit).serialize(), "-9007199254740992");
}

TEST(JsonRoundTrip, RealsReadBackBitForBit) {
    const std::pair<double, const char*> known[] = {
        {1.0, "1.0"},
        {1e300, "1e+300"},
        {-0.0, "-0.0"},
        {0.1, "0.1"},
        {123456789.0, "123456789.0"},
        {5e-324, "5e-324"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e+308"}};
    for (const auto& [value, text] : known) {
        EXPECT_EQ(Json(value).serialize(), text);
    }
    EXPECT_EQ(Json(std::nan("")).serialize(), "null");
    EXPECT_EQ(Json(-std::numeric_limits<double>::infinity()).serialize(), "null");

    std::mt19937_64 generator(20240611);
    for (int i = 0; i < 10000; ++i) {
        const auto value = std::bit_cast<double>(generator());
        if (!std::isfinite(value)) {
            continue;
        }
        const std::string text = Json(value).serialize();
        const auto parsed = Json::parse(text);
        ASSERT_TRUE(parsed.has_value()) << text;
        ASSERT_EQ(parsed->kind(), Json::Kind::real) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(*parsed->number()),
                  std::bit_cast<std::uint64_t>(value))
            << text;
    }
}

TEST(JsonRoundTrip, StringsAndStructure) {
    const auto escaped = Json::parse(R"("\"\\\/\b\f\n\r\t\u0001\u00e9\u20AC\ud83d\ude00")");
    ASSERT_TRUE(escaped.has_value());
    const std::string expected = "\"\\/\b\f\n\r\t\x01\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    EXPECT_EQ(*escaped->string(), expected);
    EXPECT_EQ(escaped->serialize(),
              "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\"");
    EXPECT_EQ(Json::parse(escaped->serialize()), escaped);
    // Damaged text in a value must not make the written file unreadable.
    EXPECT_EQ(Json(std::string("a\xFF")).serialize(), "\"a\xEF\xBF\xBD\"");
    EXPECT_EQ(Json(std::string("a\0b", 3)).serialize(), R"("a\u0000b")");

    const auto document = Json::parse(R"( {"b":[1,{}], "a":"x", "c":[]} )");
    ASSERT_TRUE(document.has_value());
    EXPECT_EQ(document->serialize(), R"({"a":"x","b":[1,{}],"c":[]})");
    EXPECT_EQ(document->serialize(Json::Layout::pretty),
              "{\n  \"a\": \"x\",\n  \"b\": [\n    1,\n    {}\n  ],\n  \"c\": []\n}");
    EXPECT_EQ(Json::parse(document->serialize(Json::Layout::pretty)), document);
}

// The writer stores sixteen bytes at a time and backs up to each byte that needs care, and the
// reader skips plain runs the same way: texts of every length, with escapes, characters of
// two to four bytes and damaged bytes at every offset, must read back as they were, with each
// damaged byte as U+FFFD.
TEST(JsonRoundTrip, StringsWithEscapesAtEveryOffset) {
    static const std::pair<const char*, const char*> pieces[] = {{"a", "a"},
                                                                 {"Z", "Z"},
                                                                 {"\n", "\n"},
                                                                 {"\"", "\""},
                                                                 {"\\", "\\"},
                                                                 {"\x01", "\x01"},
                                                                 {"é", "é"},
                                                                 {"€", "€"},
                                                                 {"😀", "😀"},
                                                                 {"\xff", "\uFFFD"},
                                                                 {"\xE2\x82", "\uFFFD\uFFFD"}};
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        std::string expected;
        const std::size_t count = random() % 80;
        for (std::size_t i = 0; i < count; ++i) {
            // Mostly plain letters, so that whole blocks pass untouched now and then.
            const auto& piece = pieces[random() % 3 == 0 ? random() % std::size(pieces) : 0];
            text += piece.first;
            expected += piece.second;
        }
        const auto read = Json::parse(Json(text).serialize());
        ASSERT_TRUE(read.has_value()) << text;
        EXPECT_EQ(*read->string(), expected);
    }
}

// Other programs escape more than this writer does: every form of escape, at every offset of
// strings long enough to be read sixteen bytes at a time.
TEST(JsonRead, StringsWithEveryEscapeAtEveryOffset) {
    static const std::pair<const char*, const char*> pieces[] = {
        {"a", "a"},       {"\\n", "\n"},    {"\\\"", "\""},          {"\\/", "/"}, {"\\t", "\t"},
        {"\\u00e9", "é"}, {"\\u20AC", "€"}, {"\\ud83d\\ude00", "😀"}, {"ж", "ж"}};
    std::mt19937 random(9);
    for (int round = 0; round < 2000; ++round) {
        std::string json = "[\"";
        std::string expected;
        const std::size_t count = random() % 80;
        for (std::size_t i = 0; i < count; ++i) {
            const auto& piece = pieces[random() % 3 == 0 ? random() % std::size(pieces) : 0];
            json += piece.first;
            expected += piece.second;
        }
        json += "\",\"after\"]";
        const auto read = Json::parse(json);
        ASSERT_TRUE(read.has_value()) << json;
        EXPECT_EQ(*(*read->array())[0].string(), expected);
        EXPECT_EQ(*(*read->array())[1].string(), "after");
    }
}

TEST(Json, BuildsAndReadsValues) {
    EXPECT_EQ(Json("text").kind(), Json::Kind::string);
    EXPECT_EQ(Json(std::uint64_t{1} << 63).kind(), Json::Kind::real);
    EXPECT_NE(Json(1), Json(1.0));
    EXPECT_EQ(Json(1).number(), 1.0);
    EXPECT_FALSE(Json(1.0).integer().has_value());

    Json settings;
    settings.set("name", "Quorvane");
    settings.set("name", "again");
    Json list;
    list.push(true);
    list.push(nullptr);
    settings.set("list", list);
    EXPECT_EQ(*settings.find("name")->string(), "again");
    EXPECT_EQ(settings.find("absent"), nullptr);
    EXPECT_EQ(list.find("name"), nullptr);
    EXPECT_EQ(settings.serialize(), R"({"list":[true,null],"name":"again"})");
}

}  // namespace
}  // namespace quorvane
