#pragma once

#include <compare>
#include <cstdint>

#include "platform/AudioPropertyAddress.hpp"

namespace quorvane {

// A process object as it was when seen: the HAL reuses object IDs, so a new process behind an
// old ID is a new key.
struct ProcessKey {
    AudioObjectID object = 0;
    std::int32_t pid = 0;

    friend bool operator==(const ProcessKey&, const ProcessKey&) = default;
    friend auto operator<=>(const ProcessKey&, const ProcessKey&) = default;
};

}  // namespace quorvane
