#pragma once

#include "platform/PowerSources.hpp"

namespace quorvane {

// No power sources to read elsewhere: no battery, and no change ever comes.
class PortablePowerSources : public PowerSources {
public:
    std::vector<PowerSourceDescription> powerSources() override { return {}; }
    Subscription observeChanges(std::function<void()>) override { return {}; }
};

}  // namespace quorvane
