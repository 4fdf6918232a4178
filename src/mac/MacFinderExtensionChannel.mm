#include "mac/MacPorts.hpp"

#include <utility>

#include "mac/MacFrameworks.h"
#include "mac/MacRelay.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// The Finder extension's requests, as distributed notifications whose object is the message:
// a sandboxed sender may not attach a dictionary.
class MacFinderExtensionChannel final : public FinderExtensionChannel {
public:
    Subscription observe(Handler handler) override {
        @autoreleasepool {
            // Without immediate delivery a menu choice would wait until Quorvane is next active.
            return observeDistributedAtOnce(
                makeNSString(kNotificationName),
                [handler = std::move(handler)](NSNotification* notification) {
                    if (const auto message = utf8StringIfText(notification.object)) {
                        handler(*message);
                    }
                });
        }
    }
};

}  // namespace

std::unique_ptr<FinderExtensionChannel> makeMacFinderExtensionChannel() {
    return std::make_unique<MacFinderExtensionChannel>();
}

}  // namespace quorvane
