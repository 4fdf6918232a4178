#pragma once

#include <memory>

#include "base/Subscription.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

// Ends an NSEvent monitor: `handler` (the CancellableAction shared with the monitor's block)
// is cancelled first, since an event already on its way may still arrive, then the monitor is
// removed. Empty when the system gave no monitor.
template <typename Cancellable>
Subscription monitorSubscription(std::shared_ptr<Cancellable> handler, id monitor) {
    if (!monitor) {
        return {};
    }
    return Subscription([handler = std::move(handler), monitor] {
        handler->cancelled = true;
        [NSEvent removeMonitor:monitor];
    });
}

}  // namespace quorvane
