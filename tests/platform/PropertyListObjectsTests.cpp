#include "platform/PropertyListObjects.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using Type = PropertyListObjects::Type;
using Object = PropertyListObjects::Object;

// Objects as a platform hands them over: a type and whatever that type holds.
struct Node {
    Type type = Type::other;
    bool boolean = false;
    bool isFloat = false;
    std::optional<std::int64_t> integer{};
    double real = 0;
    std::string text{};
    PreferenceValue::Data data{};
    std::vector<Object> elements{};
    std::vector<std::pair<Object, Object>> entries{};
};

const Node& node(Object object) {
    return *static_cast<const Node*>(object);
}

// Keeps every object it makes, as the platform's containers retain what goes in them. Text
// holding the byte 0xFF stands for text the platform cannot take.
class FakeObjects final : public PropertyListObjects {
public:
    Object add(Node made) { return keep(std::move(made)).get(); }

    Type type(Object object) const override { return node(object).type; }
    bool boolean(Object object) const override { return node(object).boolean; }
    bool isFloat(Object object) const override { return node(object).isFloat; }
    std::optional<std::int64_t> integer(Object object) const override {
        return node(object).integer;
    }
    double real(Object object) const override { return node(object).real; }
    std::string string(Object object) const override { return node(object).text; }
    PreferenceValue::Data data(Object object) const override { return node(object).data; }
    double date(Object object) const override { return node(object).real; }
    std::vector<Object> elements(Object array) const override { return node(array).elements; }
    std::vector<std::pair<Object, Object>> entries(Object dictionary) const override {
        return node(dictionary).entries;
    }

    Owned makeBoolean(bool value) override {
        return keep({.type = Type::boolean, .boolean = value});
    }
    Owned makeInteger(std::int64_t value) override {
        return keep({.type = Type::number, .integer = value, .real = static_cast<double>(value)});
    }
    Owned makeReal(double value) override {
        return keep({.type = Type::number, .isFloat = true, .real = value});
    }
    Owned makeString(const std::string& value) override {
        if (value.find('\xff') != std::string::npos) {
            return nullptr;
        }
        return keep({.type = Type::string, .text = value});
    }
    Owned makeData(const PreferenceValue::Data& value) override {
        return keep({.type = Type::data, .data = value});
    }
    Owned makeDate(double seconds) override { return keep({.type = Type::date, .real = seconds}); }
    Owned makeArray() override { return keep({.type = Type::array}); }
    Owned makeDictionary() override { return keep({.type = Type::dictionary}); }
    void append(Object array, Object element) override {
        const_cast<Node&>(node(array)).elements.push_back(element);
    }
    void setEntry(Object dictionary, Object key, Object value) override {
        const_cast<Node&>(node(dictionary)).entries.emplace_back(key, value);
    }

private:
    std::shared_ptr<Node> keep(Node made) {
        made_.push_back(std::make_shared<Node>(std::move(made)));
        return made_.back();
    }
    std::vector<std::shared_ptr<Node>> made_;
};

TEST(PropertyListObjects, BooleansStayBooleansAndNumbersAreWholeOnlyWhenTheyFit) {
    FakeObjects objects;
    const auto yes =
        readPropertyList(objects, objects.add({.type = Type::boolean, .boolean = true}));
    ASSERT_TRUE(yes);
    EXPECT_EQ(yes->kind(), PreferenceKind::boolean) << "never the number 1";
    EXPECT_EQ(*yes, PreferenceValue(true));

    EXPECT_EQ(
        readPropertyList(objects, objects.add({.type = Type::number, .integer = -7, .real = -7})),
        PreferenceValue(-7));
    // 3.0 stored as a real stays a real, though it would fit an integer.
    EXPECT_EQ(
        readPropertyList(
            objects, objects.add({.type = Type::number, .isFloat = true, .integer = 3, .real = 3})),
        PreferenceValue(3.0));
    // The largest unsigned 64-bit value: not a signed integer, so read as a real, never wrapped.
    const double huge = static_cast<double>(std::numeric_limits<std::uint64_t>::max());
    const auto unsignedMax = readPropertyList(
        objects, objects.add({.type = Type::number, .integer = std::nullopt, .real = huge}));
    ASSERT_TRUE(unsignedMax);
    ASSERT_TRUE(unsignedMax->real());
    EXPECT_GT(*unsignedMax->real(), 1.8e19);
}

TEST(PropertyListObjects, WhatAPropertyListCannotHoldIsLeftOut) {
    FakeObjects objects;
    const Object other = objects.add({.type = Type::other});
    const Object text = objects.add({.type = Type::string, .text = "kept"});
    const Object date = objects.add({.type = Type::date, .real = 86400});
    const Object array = objects.add({.type = Type::array, .elements = {text, other, date}});
    const Object numberKey = objects.add({.type = Type::number, .integer = 1, .real = 1});
    const Object dictionary =
        objects.add({.type = Type::dictionary,
                     .entries = {{numberKey, text},
                                 {text, array},
                                 {objects.add({.type = Type::string, .text = "odd"}), other}}});

    EXPECT_EQ(readPropertyList(objects, other), std::nullopt);
    EXPECT_EQ(readPropertyList(objects, nullptr), std::nullopt);
    const PreferenceValue expected(PreferenceValue::Dictionary{
        {"kept", PreferenceValue::Array{"kept", PreferenceValue::Date{86400}}}});
    EXPECT_EQ(readPropertyList(objects, dictionary), expected)
        << "a number key, and a value of no property-list kind, are both left out";
}

TEST(PropertyListObjects, ValuesMadeReadBackTheSameAndUnexpressibleTextIsLeftOut) {
    FakeObjects objects;
    const PreferenceValue value(PreferenceValue::Dictionary{
        {"on", true},
        {"count", std::int64_t{-3}},
        {"gain", 0.25},
        {"name", "Quorvane"},
        {"bytes", PreferenceValue::Data{0, 255}},
        {"when", PreferenceValue::Date{1.5}},
        {"list", PreferenceValue::Array{1, "two", PreferenceValue::Array{}}},
    });
    const auto made = makePropertyList(objects, value);
    ASSERT_TRUE(made);
    EXPECT_EQ(readPropertyList(objects, made.get()), value);

    const PreferenceValue broken(PreferenceValue::Dictionary{
        {"bad\xff", 1}, {"list", PreferenceValue::Array{"ok", "bad\xff"}}});
    const PreferenceValue kept(PreferenceValue::Dictionary{{"list", PreferenceValue::Array{"ok"}}});
    EXPECT_EQ(readPropertyList(objects, makePropertyList(objects, broken).get()), kept);
    EXPECT_FALSE(makePropertyList(objects, PreferenceValue("bad\xff")));
}

}  // namespace
}  // namespace quorvane
