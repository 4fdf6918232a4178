#include "mac/MacNotificationBus.hpp"

#include <utility>

#include "mac/MacFrameworks.h"
#include "mac/MacObservation.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

Subscription MacNotificationBus::observe(const std::string& name, Handler handler) {
    @autoreleasepool {
        NSString* notificationName = makeNSString(name);
        if (!notificationName) {
            return {};
        }
        // The main queue, so handlers run on the main thread like every other callback.
        // unconfirmed: check on a Mac first that a post made on the main thread still runs the
        // handler before the post returns, as the portable code and its fakes assume.
        // The in-process centre only: any local process can post to the distributed one, and
        // must not be able to switch a tool by name.
        return observeOnMainQueue([NSNotificationCenter defaultCenter], notificationName, nil,
                                  [handler = std::move(handler)](NSNotification* notification) {
                                      // Senders in other processes can only attach strings, but
                                      // in-process posts may attach anything; anything else
                                      // reaches the handler as no object.
                                      handler(utf8StringIfText(notification.object));
                                  });
    }
}

void MacNotificationBus::post(const std::string& name, const std::optional<std::string>& object) {
    @autoreleasepool {
        NSString* notificationName = makeNSString(name);
        if (!notificationName) {
            return;
        }
        NSString* sender = object ? makeNSString(*object) : nil;
        switch (mode_) {
            case Mode::inApplication:
                [[NSNotificationCenter defaultCenter] postNotificationName:notificationName
                                                                    object:sender];
                return;
            case Mode::fromCommandLine:
                // AppKit holds back distributed notifications while the receiving app is not
                // active, and a menu-bar app almost never is; immediate delivery overrides that.
                // unconfirmed: check on a Mac first (not in the fact sheet), including that the
                // post has left this process when the call returns, as the command line exits
                // right after it.
                [[NSDistributedNotificationCenter defaultCenter]
                    postNotificationName:notificationName
                                  object:sender
                                userInfo:nil
                      deliverImmediately:YES];
                return;
        }
    }
}

}  // namespace quorvane
