#include "mac/MacRelay.hpp"

#include <cassert>
#include <utility>

using Relayed = quorvane::CancellableAction<NSNotification*>;

@implementation QuorvaneRelay {
    std::shared_ptr<Relayed> _handler;
}

- (instancetype)initWithHandler:(std::shared_ptr<Relayed>)handler {
    if ((self = [super init])) {
        _handler = std::move(handler);
    }
    return self;
}

- (void)deliver:(NSNotification*)notification {
    // unconfirmed: check on a Mac first that the workspace sends its key-value changes on the
    // main thread; distributed posts arrive on the main thread's run loop.
    assert([NSThread isMainThread]);
    Relayed::run(_handler, notification);
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    [self deliver:nil];
}

@end

namespace quorvane {

Subscription observeDistributedAtOnce(NSString* name,
                                      std::function<void(NSNotification*)> handler) {
    auto observer = std::make_shared<Relayed>(std::move(handler));
    QuorvaneRelay* relay = [[QuorvaneRelay alloc] initWithHandler:observer];
    // An accessory app is almost never active, and an inactive app's distributed notifications
    // are held back and coalesced by default.
    // unconfirmed: check on a Mac first (NSDistributedNotificationCenter's
    // -addObserver:selector:name:object:suspensionBehavior: is not in the fact sheet; it was
    // written from Apple's reference). Posts arrive on the main thread's run loop.
    [[NSDistributedNotificationCenter defaultCenter]
               addObserver:relay
                  selector:@selector(deliver:)
                      name:name
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
    // The block keeps the relay alive until it is removed.
    return Subscription([observer, relay] {
        observer->cancelled = true;
        [[NSDistributedNotificationCenter defaultCenter] removeObserver:relay];
    });
}

}  // namespace quorvane
