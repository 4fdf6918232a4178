#include "tools/system/KeepAwakePlan.hpp"

#include <algorithm>
#include <cmath>

namespace quorvane {

const std::vector<std::int64_t>& KeepAwakePlan::durationChoices() {
    static const std::vector<std::int64_t> choices = {0, 15, 30, 60, 120, 300, 480};
    return choices;
}

std::string KeepAwakePlan::durationTitle(std::int64_t minutes) {
    if (minutes == 0) {
        return "Until turned off";
    }
    if (minutes < 60) {
        return std::to_string(minutes) + " minutes";
    }
    const auto hours = minutes / 60;
    return std::to_string(hours) + (hours == 1 ? " hour" : " hours");
}

std::int64_t KeepAwakePlan::validMinutes(std::optional<std::int64_t> stored) {
    const auto& choices = durationChoices();
    if (stored && std::find(choices.begin(), choices.end(), *stored) != choices.end()) {
        return *stored;
    }
    return 0;
}

PowerManagement::AssertionType KeepAwakePlan::assertionType(bool display) {
    return display ? PowerManagement::AssertionType::preventUserIdleDisplaySleep
                   : PowerManagement::AssertionType::preventUserIdleSystemSleep;
}

std::string KeepAwakePlan::remainingText(Seconds remaining) {
    // Rounded up, so "1 min left" lasts until the very end rather than showing "0 min".
    const auto minutes = static_cast<std::int64_t>(std::ceil(remaining.count() / 60.0));
    if (minutes <= 0) {
        return "less than a minute left";
    }
    if (minutes < 60) {
        return std::to_string(minutes) + " min left";
    }
    const auto rest = minutes % 60;
    return std::to_string(minutes / 60) + " h " + (rest < 10 ? "0" : "") + std::to_string(rest) +
           " min left";
}

}  // namespace quorvane
