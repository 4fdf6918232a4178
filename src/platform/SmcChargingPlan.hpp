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

    // Makes the plan's writes through `write`, which answers whether the controller took one.
    // Every write is made even if an earlier one fails, so a half-done change is not left
    // behind on purpose; false then, and the app asks again. False too when there is no plan.
    static bool apply(bool enabled, const KeySize& keySize,
                      const std::function<bool(const Write&)>& write);
};

}  // namespace quorvane
