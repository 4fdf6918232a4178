#pragma once

#include <optional>
#include <string>

#include "app/SystemPreferenceDomain.hpp"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

// One key of another program's preferences that a tool owns, and the value the tool wants
// there while it is on. No value means the tool leaves the user's own value in place (a
// setting of the tool the user left at "unchanged").
struct PreferenceFlip {
    std::string key;
    SystemPreferenceDomain domain;
    std::optional<PreferenceValue> value;
};

}  // namespace quorvane
