#include "tools/system/DeviceBatteryList.hpp"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace quorvane {

std::vector<HIDBatteryReading> DeviceBatteryList::devices(std::vector<HIDBatteryReading> readings) {
    // A reading of some other meaning, or of a device with no name to show, is left out.
    std::erase_if(readings, [](const HIDBatteryReading& r) {
        return r.product.empty() || r.batteryPercent < 0 || r.batteryPercent > 100;
    });
    std::set<std::string> withSerial;
    for (const auto& reading : readings) {
        if (!reading.serialNumber.empty()) {
            withSerial.insert(reading.product);
        }
    }
    // A device shows up under several registry entries, not all of which carry its serial
    // number: an entry without one stands for a device of that product already listed.
    std::vector<HIDBatteryReading> devices;
    std::set<std::pair<std::string, std::string>> seen;
    for (auto& reading : readings) {
        const bool stray = reading.serialNumber.empty() && withSerial.contains(reading.product);
        if (!stray && seen.insert({reading.product, reading.serialNumber}).second) {
            devices.push_back(std::move(reading));
        }
    }
    std::stable_sort(devices.begin(), devices.end(), [](const auto& a, const auto& b) {
        return std::tie(a.batteryPercent, a.product) < std::tie(b.batteryPercent, b.product);
    });
    return devices;
}

std::string DeviceBatteryList::line(const HIDBatteryReading& device, int lowLevel) {
    return device.product + ": " + std::to_string(device.batteryPercent) + "%" +
           (device.batteryPercent <= lowLevel ? " (low)" : "");
}

std::string DeviceBatteryList::tileTitle(const std::vector<HIDBatteryReading>& devices) {
    if (devices.empty()) {
        return "Device Batteries";
    }
    return devices.front().product + " " + std::to_string(devices.front().batteryPercent) + "%";
}

int DeviceBatteryList::validLowLevel(std::optional<long long> stored) {
    return stored && *stored >= 5 && *stored <= 50 ? static_cast<int>(*stored) : kDefaultLowLevel;
}

}  // namespace quorvane
