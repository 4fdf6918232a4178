#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// Entries of a description dictionary the system hands out (a power source's, a disk's, a
// scheduled power event's), read as Foundation's NSNumber and NSString accessors read them: a
// number and a Boolean stand for each other, and an entry that is missing or of another kind
// is nothing.

const PreferenceValue* field(const PreferenceValue::Dictionary& fields, std::string_view key);
std::optional<std::string> stringField(const PreferenceValue::Dictionary& fields,
                                       std::string_view key);
// A real is cut towards zero, as -intValue cuts it; nothing when the number does not fit.
std::optional<int> integerField(const PreferenceValue::Dictionary& fields, std::string_view key);
std::optional<bool> booleanField(const PreferenceValue::Dictionary& fields, std::string_view key);

}  // namespace quorvane
