#pragma once

#include <optional>
#include <string>

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

    // The description's keys above, by the strings IOPSKeys.h gives them.
    static PowerSourceDescription read(const PreferenceValue::Dictionary& description);
};

}  // namespace quorvane
