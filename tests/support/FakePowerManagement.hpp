#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/HandlerList.hpp"

#include "platform/PowerManagement.hpp"

namespace quorvane {

// The assertions held now, by id, and the statuses to answer.
struct FakePowerManagement : PowerManagement {
    struct Held {
        AssertionType type;
        std::string name;
    };
    std::map<AssertionID, Held> held;
    AssertionID nextID = 100;
    int createStatus = 0;
    int lockStatus = 0;
    int locks = 0;
    int releasesOfUnknown = 0;

    int createAssertion(AssertionType type, const std::string& name, AssertionID& id) override {
        if (createStatus != 0) {
            return createStatus;
        }
        id = nextID++;
        held.emplace(id, Held{type, name});
        return 0;
    }
    int releaseAssertion(AssertionID id) override {
        if (held.erase(id) == 0) {
            ++releasesOfUnknown;
            return 0xE00002C2;  // kIOReturnBadArgument
        }
        return 0;
    }
    int lockScreen() override {
        ++locks;
        return lockStatus;
    }

    // The system's sleep and wake messages, and the acknowledgements given for them.
    HandlerList<std::uint32_t, std::function<void()>> systemPower;
    int acknowledgements = 0;
    RepeatingPowerEvents repeating;
    Subscription registerForSystemPower(SystemPowerHandler handler) override {
        return systemPower.add(std::move(handler));
    }
    RepeatingPowerEvents copyRepeatingPowerEvents() override { return repeating; }
    // Sends a message as the root power domain would; the two questions carry an
    // acknowledgement.
    void send(std::uint32_t message) {
        const bool asks = message == kCanSystemSleep || message == kSystemWillSleep;
        systemPower.call(message, asks ? std::function<void()>([this] { ++acknowledgements; })
                                       : std::function<void()>());
    }
};

}  // namespace quorvane
