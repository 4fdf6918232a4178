#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// One power source as IOPSGetPowerSourceDescription describes it; only the keys Quorvane
// reads. A key the source does not offer is nothing.
struct PowerSourceDescription {
    std::string name;                    // kIOPSNameKey
    std::string type;                    // kIOPSTypeKey: "InternalBattery", "UPS"…
    std::string powerSourceState;        // kIOPSPowerSourceStateKey: "AC Power"…
    bool isPresent = false;              // kIOPSIsPresentKey
    std::optional<bool> isCharging;      // kIOPSIsChargingKey
    std::optional<int> currentCapacity;  // kIOPSCurrentCapacityKey
    std::optional<int> maxCapacity;      // kIOPSMaxCapacityKey
    static constexpr const char* kInternalBattery = "InternalBattery";
    static constexpr const char* kACPower = "AC Power";
    // The keys' strings; the Mac layer checks each against the system's name for it.
    static constexpr std::string_view kNameKey = "Name";
    static constexpr std::string_view kTypeKey = "Type";
    static constexpr std::string_view kStateKey = "Power Source State";
    static constexpr std::string_view kIsPresentKey = "Is Present";
    static constexpr std::string_view kIsChargingKey = "Is Charging";
    static constexpr std::string_view kCurrentCapacityKey = "Current Capacity";
    static constexpr std::string_view kMaxCapacityKey = "Max Capacity";

    // The description's keys above, by the strings IOPSKeys.h gives them.
    static PowerSourceDescription read(const PreferenceValue::Dictionary& description);
};

}  // namespace quorvane
