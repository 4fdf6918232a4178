#pragma once

#include <cstdint>
#include <optional>

#include "platform/AccessibilityValue.hpp"

namespace quorvane {

// The plain structs an accessibility value can wrap (an AXValue), with the system's AXValueType
// numbers. Elements, element lists, text, Booleans and numbers are objects of their own kind.
enum class AccessibilityStructType : std::uint32_t { point = 1, size = 2, rect = 3, range = 4 };

// Nothing for a value that wraps no struct.
std::optional<AccessibilityStructType> structType(const AccessibilityValue& value);
// A zeroed value of the struct a raw AXValueType names, for the platform to fill in place;
// nothing for the types Quorvane does not read (an AXError, an illegal type).
std::optional<AccessibilityValue> emptyStruct(std::uint32_t rawType);
// The struct's storage, laid out as the system lays out CGPoint, CGSize and CGRect (doubles in
// order) and CFRange (two 64-bit integers); null for a value that wraps no struct.
void* structBytes(AccessibilityValue& value);
const void* structBytes(const AccessibilityValue& value);

}  // namespace quorvane
