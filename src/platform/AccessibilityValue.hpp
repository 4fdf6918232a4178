#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "base/Rect.hpp"
#include "platform/AccessibilityElement.hpp"

namespace quorvane {

// A CFRange.
struct TextRange {
    std::int64_t location = 0;
    std::int64_t length = 0;
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

// The value of an accessibility attribute, in the kinds Quorvane reads and writes. Numbers are
// doubles; element lists are what attributes such as AXWindows hold.
using AccessibilityValue = std::variant<Element, std::vector<Element>, Point, Size, Rect, TextRange,
                                        std::string, bool, double>;

}  // namespace quorvane
