#include "platform/AccessibilityStructType.hpp"

#include <gtest/gtest.h>

#include <cstring>

namespace quorvane {
namespace {

std::uint32_t raw(const AccessibilityValue& value) {
    const auto type = structType(value);
    return type ? static_cast<std::uint32_t>(*type) : 0;
}

TEST(AccessibilityStructType, StructsCarryTheSystemsTypeNumbersAndObjectsNone) {
    EXPECT_EQ(raw(Point{1, 2}), 1u);
    EXPECT_EQ(raw(Size{3, 4}), 2u);
    EXPECT_EQ(raw(Rect(1, 2, 3, 4)), 3u);
    EXPECT_EQ(raw(TextRange{5, 6}), 4u);
    for (const AccessibilityValue& object :
         {AccessibilityValue(std::string("title")), AccessibilityValue(true),
          AccessibilityValue(0.5), AccessibilityValue(Element()),
          AccessibilityValue(std::vector<Element>{})}) {
        EXPECT_EQ(structType(object), std::nullopt);
        EXPECT_EQ(structBytes(object), nullptr);
    }
}

TEST(AccessibilityStructType, AStructIsFilledInPlaceAsTheSystemLaysItOut) {
    auto rect = emptyStruct(3);
    ASSERT_TRUE(rect);
    const double fields[] = {10, 20, 300, 400};  // x, y, width, height
    std::memcpy(structBytes(*rect), fields, sizeof fields);
    EXPECT_EQ(*rect, AccessibilityValue(Rect(10, 20, 300, 400)));

    auto range = emptyStruct(4);
    ASSERT_TRUE(range);
    const std::int64_t location[] = {7, 3};  // location, length
    std::memcpy(structBytes(*range), location, sizeof location);
    EXPECT_EQ(*range, AccessibilityValue(TextRange{7, 3}));

    EXPECT_EQ(emptyStruct(1), AccessibilityValue(Point{}));
    EXPECT_EQ(emptyStruct(2), AccessibilityValue(Size{}));
    EXPECT_EQ(emptyStruct(5), std::nullopt) << "an AXError value is not read";
    EXPECT_EQ(emptyStruct(0), std::nullopt) << "nor an illegal one";
}

}  // namespace
}  // namespace quorvane
