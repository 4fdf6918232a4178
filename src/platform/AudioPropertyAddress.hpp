#pragma once

#include <cstdint>

namespace quorvane {

using AudioObjectID = std::uint32_t;
using OSStatus = std::int32_t;

// A HAL property: selector, scope and element, each a four-character code or number.
struct AudioPropertyAddress {
    std::uint32_t selector = 0;
    std::uint32_t scope = 0;
    std::uint32_t element = 0;

    friend bool operator==(const AudioPropertyAddress&, const AudioPropertyAddress&) = default;
    friend auto operator<=>(const AudioPropertyAddress&, const AudioPropertyAddress&) = default;
};

}  // namespace quorvane
