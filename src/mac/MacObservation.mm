#include "mac/MacObservation.hpp"

#include <cassert>
#include <memory>
#include <utility>

#include "mac/CancellableAction.hpp"

namespace quorvane {

Subscription observeOnMainQueue(NSNotificationCenter* center, NSNotificationName name, id object,
                                std::function<void(NSNotification*)> handler) {
    using Callback = CancellableAction<NSNotification*>;
    auto callback = std::make_shared<Callback>(std::move(handler));
    // unconfirmed: check on a Mac first (+[NSOperationQueue mainQueue] is not in the fact sheet).
    id<NSObject> token = [center addObserverForName:name
                                             object:object
                                              queue:[NSOperationQueue mainQueue]
                                         usingBlock:^(NSNotification* notification) {
                                           assert([NSThread isMainThread]);
                                           Callback::run(callback, notification);
                                         }];
    return Subscription([callback, center, token] {
        callback->cancelled = true;
        [center removeObserver:token];
    });
}

}  // namespace quorvane
