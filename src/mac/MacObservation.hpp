#pragma once

#include <functional>

#include "base/Subscription.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

// Runs `handler` on the main thread for every `name` posted to `center` (by `object`, or by
// anyone for nil) until the subscription ends; a notification already queued then is dropped.
Subscription observeOnMainQueue(NSNotificationCenter* center, NSNotificationName name, id object,
                                std::function<void(NSNotification*)> handler);

}  // namespace quorvane
