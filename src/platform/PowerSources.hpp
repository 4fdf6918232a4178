#pragma once

#include <functional>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/PowerSourceDescription.hpp"

namespace quorvane {

// The power-source API: every battery and UPS the system knows, and word of any change to
// them (IOPSCopyPowerSourcesInfo and IOPSNotificationCreateRunLoopSource).
class PowerSources {
public:
    virtual ~PowerSources() = default;
    virtual std::vector<PowerSourceDescription> powerSources() = 0;
    // Called on the main run loop whenever any source changes (charge, adapter, state). An
    // empty subscription when the system offered no notification.
    [[nodiscard]] virtual Subscription observeChanges(std::function<void()> handler) = 0;
};

}  // namespace quorvane
