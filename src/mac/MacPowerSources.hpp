#pragma once

#include "platform/PowerSources.hpp"

namespace quorvane {

// IOKit's power-source API.
class MacPowerSources final : public PowerSources {
public:
    std::vector<PowerSourceDescription> powerSources() override;
    Subscription observeChanges(std::function<void()> handler) override;
};

}  // namespace quorvane
