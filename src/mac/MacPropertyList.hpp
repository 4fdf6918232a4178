#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

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

// The values of an array, borrowed from it.
std::vector<const void*> arrayValues(CFArrayRef array);
// The kind `types` pairs with the object's type; `other` for a type it does not name.
template <typename Kind, std::size_t count>
Kind kindOf(CFTypeRef object, const std::pair<CFTypeID, Kind> (&types)[count], Kind other) {
    const CFTypeID id = CFGetTypeID(object);
    for (const auto& [typeID, kind] : types) {
        if (typeID == id) {
            return kind;
        }
    }
    return other;
}

}  // namespace quorvane
