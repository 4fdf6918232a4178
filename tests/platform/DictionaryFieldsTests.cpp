#include "platform/DictionaryFields.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(DictionaryFields, ReadNumbersAndBooleansAsFoundationDoes) {
    const PreferenceValue::Dictionary fields{
        {"name", "Battery"}, {"count", 42},  {"ratio", -2.75}, {"on", true},
        {"off", false},      {"huge", 1e12}, {"zero", 0.0},    {"list", PreferenceValue::Array{}},
    };
    EXPECT_EQ(stringField(fields, "name"), "Battery");
    EXPECT_EQ(stringField(fields, "count"), std::nullopt);
    EXPECT_EQ(stringField(fields, "missing"), std::nullopt);

    EXPECT_EQ(integerField(fields, "count"), 42);
    EXPECT_EQ(integerField(fields, "ratio"), -2);
    EXPECT_EQ(integerField(fields, "on"), 1);
    EXPECT_EQ(integerField(fields, "huge"), std::nullopt);
    EXPECT_EQ(integerField(fields, "name"), std::nullopt);

    EXPECT_EQ(booleanField(fields, "on"), true);
    EXPECT_EQ(booleanField(fields, "off"), false);
    EXPECT_EQ(booleanField(fields, "count"), true);
    EXPECT_EQ(booleanField(fields, "zero"), false);
    EXPECT_EQ(booleanField(fields, "list"), std::nullopt);
    EXPECT_EQ(booleanField(fields, "missing"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
