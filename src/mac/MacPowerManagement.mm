#include "mac/MacPorts.hpp"

#include <dlfcn.h>

#include <cassert>
#include <memory>

#include "mac/MacFrameworks.h"
#include "mac/CFRef.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// One registration with the root power domain: what IORegisterForSystemPower handed back,
// and the handler its callback reaches through the context pointer.
struct SystemPowerRegistration {
    PowerManagement::SystemPowerHandler handler;
    io_connect_t rootPort = 0;
    IONotificationPortRef notifyPort = nullptr;
    io_object_t notifier = 0;
};

void systemPowerMessage(void* refcon, io_service_t, uint32_t messageType, void* argument) {
    assert([NSThread isMainThread]);
    auto* registration = static_cast<SystemPowerRegistration*>(refcon);
    std::function<void()> allow;
    // Only the two questions about sleep take an answer; answering any other message is
    // wrong, and leaving these two unanswered holds sleep up for 30 seconds.
    if (messageType == kIOMessageCanSystemSleep || messageType == kIOMessageSystemWillSleep) {
        const io_connect_t port = registration->rootPort;
        const auto notificationID = reinterpret_cast<intptr_t>(argument);
        allow = [port, notificationID] { IOAllowPowerChange(port, notificationID); };
    }
    try {
        registration->handler(messageType, std::move(allow));
    } catch (...) {
        // Nothing may unwind into IOKit.
    }
}

std::optional<RepeatingPowerEvents::Event> repeatingEvent(NSDictionary* events, NSString* key) {
    NSDictionary* event = events[key];
    if (![event isKindOfClass:[NSDictionary class]]) {
        return std::nullopt;
    }
    NSString* type = event[@kIOPMPowerEventTypeKey];
    NSNumber* time = event[@kIOPMPowerEventTimeKey];
    NSNumber* days = event[@kIOPMDaysOfWeekKey];
    if (![type isKindOfClass:[NSString class]] || ![time isKindOfClass:[NSNumber class]] ||
        ![days isKindOfClass:[NSNumber class]]) {
        return std::nullopt;
    }
    return RepeatingPowerEvents::Event{utf8String(type), time.intValue, days.intValue};
}

// IOKit's power-management assertions, sleep and wake messages and repeating power events,
// and the screen lock of the login framework.
class MacPowerManagement final : public PowerManagement {
public:
    int createAssertion(AssertionType type, const std::string& name, AssertionID& id) override {
        // unconfirmed: check on a Mac first. The type strings as documented for
        // kIOPMAssertPreventUserIdleSystemSleep and kIOPMAssertPreventUserIdleDisplaySleep.
        const CFStringRef typeName = type == AssertionType::preventUserIdleDisplaySleep
                                         ? CFSTR("PreventUserIdleDisplaySleep")
                                         : CFSTR("PreventUserIdleSystemSleep");
        IOPMAssertionID assertion = 0;
        const IOReturn status = IOPMAssertionCreateWithName(
            typeName, kIOPMAssertionLevelOn, (__bridge CFStringRef)makeNSString(name), &assertion);
        if (status == kIOReturnSuccess) {
            id = assertion;
        }
        return status;
    }

    int releaseAssertion(AssertionID id) override { return IOPMAssertionRelease(id); }

    int lockScreen() override {
        // No public call locks the session. The login framework's SACLockScreenImmediate is what
        // the lock item of the Apple menu uses; it is private, so it is looked up at run time and
        // its absence is answered as "unsupported" rather than a crash.
        // unconfirmed: check on a Mac first (the framework path, the symbol and its int(void)
        // shape).
        static void* const framework =
            dlopen("/System/Library/PrivateFrameworks/login.framework/Versions/Current/login",
                   RTLD_LAZY | RTLD_LOCAL);
        if (framework == nullptr) {
            return kUnsupported;
        }
        using LockCall = int (*)();
        const auto lock = reinterpret_cast<LockCall>(dlsym(framework, "SACLockScreenImmediate"));
        if (lock == nullptr) {
            return kUnsupported;
        }
        return lock();
    }

    Subscription registerForSystemPower(SystemPowerHandler handler) override {
        auto registration = std::make_shared<SystemPowerRegistration>();
        registration->handler = std::move(handler);
        // The registration is the context: it lives until the subscription ends, and the
        // subscription undoes the registration first.
        registration->rootPort =
            IORegisterForSystemPower(registration.get(), &registration->notifyPort,
                                     &systemPowerMessage, &registration->notifier);
        if (registration->rootPort == MACH_PORT_NULL) {
            return {};
        }
        CFRunLoopAddSource(CFRunLoopGetMain(),
                           IONotificationPortGetRunLoopSource(registration->notifyPort),
                           kCFRunLoopCommonModes);
        return Subscription([registration] {
            CFRunLoopRemoveSource(CFRunLoopGetMain(),
                                  IONotificationPortGetRunLoopSource(registration->notifyPort),
                                  kCFRunLoopCommonModes);
            IODeregisterForSystemPower(&registration->notifier);
            IOServiceClose(registration->rootPort);
            IONotificationPortDestroy(registration->notifyPort);
        });
    }

    RepeatingPowerEvents copyRepeatingPowerEvents() override {
        // unconfirmed: check on a Mac first (the key strings of IOPMKeys.h and the weekday bits,
        // Monday in bit 0, are as pmset's repeat command reads them).
        const auto copied = CFRef<CFDictionaryRef>::adopt(IOPMCopyRepeatingPowerEvents());
        if (!copied) {
            return {};
        }
        NSDictionary* events = (__bridge NSDictionary*)copied.get();
        return {
            repeatingEvent(events, @kIOPMRepeatingPowerOnKey),
                repeatingEvent(events, @kIOPMRepeatingPowerOffKey)
        };
    }
};

}  // namespace

std::unique_ptr<PowerManagement> makeMacPowerManagement() {
    return std::make_unique<MacPowerManagement>();
}

}  // namespace quorvane
