#pragma once

#include <vector>

#include "platform/ChargingHelper.hpp"

namespace quorvane {

// A helper whose registration the test sets, recording what it was asked to do.
struct FakeChargingHelper : ChargingHelper {
    Status registration = Status::enabled;
    int answer = 0;
    int registrations = 0;
    // Every setChargingEnabled request, in order, answered or not.
    std::vector<bool> requests;
    // What the battery does now: the last request that succeeded; the system charges by itself.
    bool charging = true;

    Status status() override { return registration; }
    int registerHelper() override {
        ++registrations;
        registration = Status::requiresApproval;
        return 0;
    }
    int unregisterHelper() override {
        registration = Status::notRegistered;
        return 0;
    }
    int setChargingEnabled(bool enabled) override {
        requests.push_back(enabled);
        if (registration != Status::enabled) {
            return kUnreachable;
        }
        if (answer == 0) {
            charging = enabled;
        }
        return answer;
    }
};

}  // namespace quorvane
