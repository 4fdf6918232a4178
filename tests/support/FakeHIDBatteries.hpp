#pragma once

#include <vector>

#include "platform/HIDBatteries.hpp"

namespace quorvane {

struct FakeHIDBatteries : HIDBatteries {
    std::vector<HIDBatteryReading> devices;
    int reads = 0;
    std::vector<HIDBatteryReading> readings() override {
        ++reads;
        return devices;
    }
};

}  // namespace quorvane
