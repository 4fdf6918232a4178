#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvane {

// Which controller keys switch charging, and what is written to them. The keys differ between
// firmware generations, so the plan asks the controller each key's size first: a key whose size
// differs from the one expected is not the key described here, and is left alone rather than
// written with a guess.
struct SmcChargingPlan {
    struct Write {
        std::uint32_t key = 0;
        std::vector<std::uint8_t> value;

        bool operator==(const Write&) const = default;
    };

    // The size of a key's value, 0 when the controller has no such key.
    using KeySize = std::function<std::size_t(std::uint32_t key)>;

    // The writes that switch charging on or off, all of which are to be made; nothing when this
    // machine has no charging key the plan knows.
    static std::optional<std::vector<Write>> writes(bool enabled, const KeySize& keySize);
};

}  // namespace quorvane
