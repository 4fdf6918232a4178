#pragma once

#include <string>

namespace quorvane {

// One HID device that reports its battery in the I/O registry.
struct HIDBatteryReading {
    std::string product;       // the "Product" property: "Magic Mouse"
    std::string serialNumber;  // "SerialNumber", or the Bluetooth "DeviceAddress"; may be empty
    int batteryPercent = 0;    // "BatteryPercent"
    friend bool operator==(const HIDBatteryReading&, const HIDBatteryReading&) = default;
};

}  // namespace quorvane
