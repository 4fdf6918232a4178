#pragma once

#include <optional>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

// Property lists (the user defaults' values, the HAL's description dictionaries) to and from
// PreferenceValue.

// Nothing for an object of a kind a property list cannot hold.
std::optional<PreferenceValue> fromPropertyList(CFTypeRef object);
// Empty when the value cannot be expressed (text that is not UTF-8); elements of that kind
// are left out of arrays and dictionaries.
CFRef<CFPropertyListRef> toPropertyList(const PreferenceValue& value);

}  // namespace quorvane
