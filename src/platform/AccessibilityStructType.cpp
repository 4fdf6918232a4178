#include "platform/AccessibilityStructType.hpp"

#include <type_traits>
#include <utility>
#include <variant>

namespace quorvane {

namespace {

template <typename T>
constexpr std::optional<AccessibilityStructType> typeOf() {
    if constexpr (std::is_same_v<T, Point>) {
        return AccessibilityStructType::point;
    } else if constexpr (std::is_same_v<T, Size>) {
        return AccessibilityStructType::size;
    } else if constexpr (std::is_same_v<T, Rect>) {
        return AccessibilityStructType::rect;
    } else if constexpr (std::is_same_v<T, TextRange>) {
        return AccessibilityStructType::range;
    } else {
        return std::nullopt;
    }
}

}  // namespace

std::optional<AccessibilityStructType> structType(const AccessibilityValue& value) {
    return std::visit([](const auto& v) { return typeOf<std::decay_t<decltype(v)>>(); }, value);
}

std::optional<AccessibilityValue> emptyStruct(std::uint32_t rawType) {
    switch (static_cast<AccessibilityStructType>(rawType)) {
        case AccessibilityStructType::point:
            return Point{};
        case AccessibilityStructType::size:
            return Size{};
        case AccessibilityStructType::rect:
            return Rect{};
        case AccessibilityStructType::range:
            return TextRange{};
    }
    return std::nullopt;
}

void* structBytes(AccessibilityValue& value) {
    return const_cast<void*>(structBytes(std::as_const(value)));
}

const void* structBytes(const AccessibilityValue& value) {
    return std::visit(
        [](const auto& v) -> const void* {
            if constexpr (typeOf<std::decay_t<decltype(v)>>().has_value()) {
                return &v;
            } else {
                return nullptr;
            }
        },
        value);
}

}  // namespace quorvane
