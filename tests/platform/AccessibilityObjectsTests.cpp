#include "platform/AccessibilityObjects.hpp"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/Accessibility.hpp"

namespace quorvane {
namespace {

using Type = AccessibilityObjects::Type;
using Object = AccessibilityObjects::Object;

// An object as the system hands it over. A struct holds its AXValueType and up to four fields.
struct Node {
    Type type = Type::other;
    Element element{};
    std::uint32_t structType = 0;
    double fields[4] = {};
    std::string text{};
    bool boolean = false;
    double number = 0;
    std::vector<Object> items{};
};

const Node& node(Object object) {
    return *static_cast<const Node*>(object);
}

struct FakeObjects final : AccessibilityObjects {
    Type type(Object object) const override { return node(object).type; }
    Element element(Object object) const override { return node(object).element; }
    std::uint32_t structType(Object object) const override { return node(object).structType; }
    bool readStruct(Object object, std::uint32_t type, void* bytes) const override {
        if (type != node(object).structType) {
            return false;
        }
        // A rectangle has four fields; points, sizes and ranges two.
        std::memcpy(bytes, node(object).fields, type == 3 ? 32 : 16);
        return true;
    }
    std::string string(Object object) const override { return node(object).text; }
    std::string urlString(Object object) const override { return node(object).text; }
    bool boolean(Object object) const override { return node(object).boolean; }
    double number(Object object) const override { return node(object).number; }
    std::vector<Object> elements(Object array) const override { return node(array).items; }
};

struct Window : AccessibilityElement {};

TEST(AccessibilityObjects, ValuesReadAsTheirKindAndListsKeepOnlyElements) {
    const FakeObjects objects;
    const Element window = std::make_shared<Window>();
    const Node element{.type = Type::element, .element = window};
    const Node frame{.type = Type::structValue, .structType = 3, .fields = {10, 20, 640, 480}};
    const Node title{.type = Type::string, .text = "Inbox"};
    const Node count{.type = Type::number, .number = 3};
    const Node url{.type = Type::url, .text = "file:///Applications/Mail.app/"};
    const Node date{.type = Type::other};
    const Node windows{.type = Type::array, .items = {&element, &title, &url, nullptr, &element}};

    EXPECT_EQ(readAccessibilityValue(objects, &element), AccessibilityValue(window));
    EXPECT_EQ(readAccessibilityValue(objects, &frame), AccessibilityValue(Rect(10, 20, 640, 480)));
    EXPECT_EQ(readAccessibilityValue(objects, &title), AccessibilityValue(std::string("Inbox")));
    EXPECT_EQ(readAccessibilityValue(objects, &count), AccessibilityValue(3.0));
    EXPECT_EQ(readAccessibilityValue(objects, &windows),
              AccessibilityValue(std::vector<Element>{window, window}));
    EXPECT_EQ(readAccessibilityValue(objects, &url),
              AccessibilityValue(std::string("file:///Applications/Mail.app/")));
    EXPECT_EQ(readAccessibilityValue(objects, &date), std::nullopt);
    EXPECT_EQ(readAccessibilityValue(objects, nullptr), std::nullopt);
    const Node error{.type = Type::structValue, .structType = 5};
    EXPECT_EQ(readAccessibilityValue(objects, &error), std::nullopt) << "an AXError value";
}

TEST(AccessibilityObjects, ACopyFailsAsTheSystemSaysOrHasNoValue) {
    const FakeObjects objects;
    const Node title{.type = Type::string, .text = "Inbox"};
    const Node date{.type = Type::other};
    AccessibilityValue value = false;

    EXPECT_EQ(readCopiedValue(Accessibility::kCannotComplete, objects, &title, value),
              Accessibility::kCannotComplete)
        << "a failure stands even when something came back";
    EXPECT_EQ(readCopiedValue(Accessibility::kSuccess, objects, nullptr, value),
              Accessibility::kNoValue);
    EXPECT_EQ(readCopiedValue(Accessibility::kSuccess, objects, &date, value),
              Accessibility::kNoValue);
    EXPECT_EQ(value, AccessibilityValue(false)) << "untouched until a value is read";
    EXPECT_EQ(readCopiedValue(Accessibility::kSuccess, objects, &title, value),
              Accessibility::kSuccess);
    EXPECT_EQ(value, AccessibilityValue(std::string("Inbox")));
}

}  // namespace
}  // namespace quorvane
