#pragma once

#include "platform/HIDBatteries.hpp"

namespace quorvane {

// The I/O registry's HID devices that publish their battery.
class MacHIDBatteries final : public HIDBatteries {
public:
    std::vector<HIDBatteryReading> readings() override;
};

}  // namespace quorvane
