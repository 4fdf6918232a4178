#pragma once

#include <optional>
#include <string>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// One HID device that reports its battery in the I/O registry.
struct HIDBatteryReading {
    std::string product;       // the "Product" property: "Magic Mouse"
    std::string serialNumber;  // "SerialNumber", or the Bluetooth "DeviceAddress"; may be empty
    int batteryPercent = 0;    // "BatteryPercent"
    friend bool operator==(const HIDBatteryReading&, const HIDBatteryReading&) = default;

    // The device's registry properties by the names above; nothing when it gives no whole
    // percentage.
    static std::optional<HIDBatteryReading> read(const PreferenceValue::Dictionary& properties);
};

}  // namespace quorvane
