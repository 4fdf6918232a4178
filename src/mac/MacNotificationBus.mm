#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacNotificationBus.hpp"

#include <cassert>
#include <memory>
#include <utility>

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// Shared by the observer block and the Subscription that removes it. A notification already
// queued on the main operation queue may still arrive after removal; the flag drops it.
struct Observer {
    explicit Observer(NotificationBus::Handler body) : handler(std::move(body)) {}
    bool cancelled = false;
    NotificationBus::Handler handler;
};

std::optional<std::string> objectText(id object) {
    // Senders in other processes can only attach strings, but in-process posts may attach
    // anything; anything else reaches the handler as no object.
    if (![object isKindOfClass:[NSString class]]) {
        return std::nullopt;
    }
    NSString* text = object;
    return utf8String(text);
}

}  // namespace

Subscription MacNotificationBus::observe(const std::string& name, Handler handler) {
    @autoreleasepool {
        NSString* notificationName = makeNSString(name);
        if (!notificationName) {
            return {};
        }
        auto observer = std::make_shared<Observer>(std::move(handler));
        void (^deliver)(NSNotification*) = ^(NSNotification* notification) {
          assert([NSThread isMainThread]);
          // The handler may end this very subscription, which can free this block; the local
          // copy keeps the handler alive until it returns.
          const std::shared_ptr<Observer> running = observer;
          if (!running->cancelled) {
              running->handler(objectText(notification.object));
          }
        };
        // The main queue, so handlers run on the main thread like every other callback.
        // unconfirmed: check on a Mac first that a post made on the main thread still runs the
        // handler before the post returns, as the portable code and its fakes assume.
        id<NSObject> localToken =
            [[NSNotificationCenter defaultCenter] addObserverForName:notificationName
                                                              object:nil
                                                               queue:[NSOperationQueue mainQueue]
                                                          usingBlock:deliver];
        // The in-process centre only: any local process can post to the distributed one, and
        // must not be able to switch a tool by name.
        return Subscription([observer, localToken] {
            observer->cancelled = true;
            [[NSNotificationCenter defaultCenter] removeObserver:localToken];
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
