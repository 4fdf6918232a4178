#pragma once

#include <functional>
#include <memory>

#include "base/Subscription.hpp"
#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"

// For the observers that must be an object answering a message (key-value observation, and the
// distributed centre's choice of suspension, which only selector observers are offered): this
// one only relays to its handler, until the handler is cancelled.
@interface QuorvaneRelay : NSObject
- (instancetype)initWithHandler:
    (std::shared_ptr<quorvane::CancellableAction<NSNotification*>>)handler;
// nil for a key-value change.
- (void)deliver:(NSNotification*)notification;
@end

namespace quorvane {

// Runs `handler` on the main thread for every `name` posted to the distributed centre, delivered
// at once even while Quorvane is not the active app, until the subscription ends.
Subscription observeDistributedAtOnce(NSString* name, std::function<void(NSNotification*)> handler);

}  // namespace quorvane
