#pragma once

#include "platform/PowerManagement.hpp"

namespace quorvane {

// No power management to ask elsewhere: every request is refused as unsupported.
class PortablePowerManagement : public PowerManagement {
public:
    int createAssertion(AssertionType, const std::string&, AssertionID&) override {
        return kUnsupported;
    }
    int releaseAssertion(AssertionID) override { return kUnsupported; }
    int lockScreen() override { return kUnsupported; }
    Subscription registerForSystemPower(SystemPowerHandler) override { return {}; }
    RepeatingPowerEvents copyRepeatingPowerEvents() override { return {}; }
};

}  // namespace quorvane
