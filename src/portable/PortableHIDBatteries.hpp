#pragma once

#include "platform/HIDBatteries.hpp"

namespace quorvane {

// No I/O registry elsewhere: no devices report a battery.
class PortableHIDBatteries : public HIDBatteries {
public:
    std::vector<HIDBatteryReading> readings() override { return {}; }
};

}  // namespace quorvane
