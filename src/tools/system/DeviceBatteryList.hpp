#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/HIDBatteryReading.hpp"

namespace quorvane {

// The devices to show, from what the registry reports: one line per device even when it
// appears under several registry entries, the emptiest first.
struct DeviceBatteryList {
    static constexpr int kDefaultLowLevel = 20;
    static std::vector<HIDBatteryReading> devices(std::vector<HIDBatteryReading> readings);
    // "Magic Mouse: 45%", with " (low)" at or below the low level.
    static std::string line(const HIDBatteryReading& device, int lowLevel);
    // The menu tile's title: the emptiest device, or the tool's name when there is none.
    static std::string tileTitle(const std::vector<HIDBatteryReading>& devices);
    static int validLowLevel(std::optional<long long> stored);
};

}  // namespace quorvane
