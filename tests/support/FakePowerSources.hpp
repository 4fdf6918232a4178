#pragma once

#include <vector>

#include "base/HandlerList.hpp"
#include "platform/PowerSources.hpp"

namespace quorvane {

// The power sources to answer, and their change notification.
struct FakePowerSources : PowerSources {
    std::vector<PowerSourceDescription> sources;
    HandlerList<> observers;

    std::vector<PowerSourceDescription> powerSources() override { return sources; }
    Subscription observeChanges(std::function<void()> handler) override {
        return observers.add(std::move(handler));
    }
    // A built-in battery at this charge, on the adapter.
    void battery(int percent, bool charging) {
        sources = {{"InternalBattery-0", PowerSourceDescription::kInternalBattery,
                    PowerSourceDescription::kACPower, true, charging, percent, 100}};
        observers.call();
    }
};

}  // namespace quorvane
