#pragma once

#include <string>
#include <vector>

#include "base/HandlerList.hpp"
#include "platform/DisplayConfiguration.hpp"

namespace quorvane {

// Display identifiers in the order of FakeScreens' displays; `reconfigure` plays the system's
// word that they changed.
struct FakeDisplayConfiguration : DisplayConfiguration {
    std::vector<std::string> ids{"built-in"};
    HandlerList<> observers;

    std::vector<std::string> displayIDs() override { return ids; }
    Subscription observeReconfiguration(std::function<void()> handler) override {
        return observers.add(std::move(handler));
    }
    void reconfigure() { observers.call(); }
};

}  // namespace quorvane
