#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/PowerManagement.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

// What keeping awake means for a stored choice: how long, which assertion, and how the time
// left reads.
struct KeepAwakePlan {
    // 0 keeps the Mac awake until the tool is turned off.
    static const std::vector<std::int64_t>& durationChoices();
    static std::string durationTitle(std::int64_t minutes);
    // A stored value that is not one of the choices falls back to "until turned off".
    static std::int64_t validMinutes(std::optional<std::int64_t> stored);
    // Keeping the display on also keeps the system on; the display assertion implies both.
    static PowerManagement::AssertionType assertionType(bool display);
    // "2 h 05 min left", "4 min left", "less than a minute left".
    static std::string remainingText(Seconds remaining);
};

}  // namespace quorvane
