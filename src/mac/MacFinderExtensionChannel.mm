#include "mac/MacPorts.hpp"

#include <cassert>
#include <memory>

#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

using FinderMessageHandler = quorvane::CancellableAction<const std::string&>;

// The distributed centre's immediate delivery is only offered to selector observers.
@interface QuorvaneFinderRequestRelay : NSObject
- (instancetype)initWithHandler:(std::shared_ptr<FinderMessageHandler>)handler;
- (void)deliver:(NSNotification*)notification;
@end

@implementation QuorvaneFinderRequestRelay {
    std::shared_ptr<FinderMessageHandler> _handler;
}

- (instancetype)initWithHandler:(std::shared_ptr<FinderMessageHandler>)handler {
    if ((self = [super init])) {
        _handler = std::move(handler);
    }
    return self;
}

- (void)deliver:(NSNotification*)notification {
    assert([NSThread isMainThread]);
    if (const auto message = quorvane::utf8StringIfText(notification.object)) {
        FinderMessageHandler::run(_handler, *message);
    }
}

@end

namespace quorvane {

namespace {

// The Finder extension's requests, as distributed notifications whose object is the message:
// a sandboxed sender may not attach a dictionary.
class MacFinderExtensionChannel final : public FinderExtensionChannel {
public:
    Subscription observe(Handler handler) override {
        @autoreleasepool {
            auto observer = std::make_shared<FinderMessageHandler>(std::move(handler));
            QuorvaneFinderRequestRelay* relay =
                [[QuorvaneFinderRequestRelay alloc] initWithHandler:observer];
            // unconfirmed: check on a Mac first (-addObserver:selector:name:object:
            // suspensionBehavior: is written from Apple's reference). Quorvane is an accessory app,
            // rarely active; without immediate delivery a menu choice would wait until it is.
            [[NSDistributedNotificationCenter defaultCenter]
                       addObserver:relay
                          selector:@selector(deliver:)
                              name:makeNSString(kNotificationName)
                            object:nil
                suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
            return Subscription([observer, relay] {
                observer->cancelled = true;
                [[NSDistributedNotificationCenter defaultCenter] removeObserver:relay];
            });
        }
    }
};

}  // namespace

std::unique_ptr<FinderExtensionChannel> makeMacFinderExtensionChannel() {
    return std::make_unique<MacFinderExtensionChannel>();
}

}  // namespace quorvane
