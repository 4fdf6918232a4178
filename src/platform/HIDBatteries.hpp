#pragma once

#include <vector>

#include "platform/HIDBatteryReading.hpp"

namespace quorvane {

// The I/O registry's HID devices that publish a "BatteryPercent" property: Bluetooth mice,
// keyboards and trackpads. A device may appear under more than one registry entry.
class HIDBatteries {
public:
    virtual ~HIDBatteries() = default;
    virtual std::vector<HIDBatteryReading> readings() = 0;
};

}  // namespace quorvane
