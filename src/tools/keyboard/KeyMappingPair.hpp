#pragma once

#include <cstdint>

namespace quorvane {

// One entry of a keyboard's user key mapping table: full usage values (page and usage), as the
// system's HID event services take them.
struct KeyMappingPair {
    std::int64_t source = 0;
    std::int64_t destination = 0;

    friend bool operator==(const KeyMappingPair&, const KeyMappingPair&) = default;
};

}  // namespace quorvane
