#pragma once

#include "platform/ChargingHelper.hpp"

namespace quorvane {

// There is no privileged helper outside the Mac app.
class PortableChargingHelper : public ChargingHelper {
public:
    Status status() override { return Status::notFound; }
    int registerHelper() override { return kUnsupported; }
    int unregisterHelper() override { return kUnsupported; }
    int setChargingEnabled(bool) override { return kUnsupported; }
};

}  // namespace quorvane
