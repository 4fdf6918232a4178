#pragma once

#include "platform/PowerManagement.hpp"

namespace quorvane {

// IOKit's power-management assertions, sleep and wake messages and repeating power events,
// and the screen lock of the login framework.
class MacPowerManagement final : public PowerManagement {
public:
    int createAssertion(AssertionType type, const std::string& name, AssertionID& id) override;
    int releaseAssertion(AssertionID id) override;
    int lockScreen() override;
    Subscription registerForSystemPower(SystemPowerHandler handler) override;
    RepeatingPowerEvents copyRepeatingPowerEvents() override;
};

}  // namespace quorvane
