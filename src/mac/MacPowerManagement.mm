#include "mac/MacPorts.hpp"

#include <dlfcn.h>

#include <cassert>
#include <memory>

#include "base/CallWithoutUnwinding.hpp"
#include "mac/MacFrameworks.h"
#include "mac/CFRef.hpp"
#include "mac/MacPropertyList.hpp"
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

static_assert(PowerManagement::kCanSystemSleep == kIOMessageCanSystemSleep &&
              PowerManagement::kSystemWillSleep == kIOMessageSystemWillSleep);
static_assert(RepeatingPowerEvents::kPowerOnKey == kIOPMRepeatingPowerOnKey &&
              RepeatingPowerEvents::kPowerOffKey == kIOPMRepeatingPowerOffKey &&
              RepeatingPowerEvents::kTypeKey == kIOPMPowerEventTypeKey &&
              RepeatingPowerEvents::kTimeKey == kIOPMPowerEventTimeKey &&
              RepeatingPowerEvents::kWeekdaysKey == kIOPMDaysOfWeekKey);

void systemPowerMessage(void* refcon, io_service_t, uint32_t messageType, void* argument) {
    assert([NSThread isMainThread]);
    auto* registration = static_cast<SystemPowerRegistration*>(refcon);
    std::function<void()> allow;
    if (PowerManagement::takesAnswer(messageType)) {
        const io_connect_t port = registration->rootPort;
        const auto notificationID = reinterpret_cast<intptr_t>(argument);
        allow = [port, notificationID] { IOAllowPowerChange(port, notificationID); };
    }
    callWithoutUnwinding(registration->handler, messageType, std::move(allow));
}

// IOKit's power-management assertions, sleep and wake messages and repeating power events,
// and the screen lock of the login framework.
class MacPowerManagement final : public PowerManagement {
public:
    int createAssertion(AssertionType type, const std::string& name, AssertionID& id) override {
        IOPMAssertionID assertion = 0;
        const IOReturn status =
            IOPMAssertionCreateWithName(makeCFString(typeName(type)).get(), kIOPMAssertionLevelOn,
                                        (__bridge CFStringRef)makeNSString(name), &assertion);
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
        const auto copied = CFRef<CFDictionaryRef>::adopt(IOPMCopyRepeatingPowerEvents());
        return RepeatingPowerEvents::read(fromPropertyList(copied.get()));
    }
};

}  // namespace

std::unique_ptr<PowerManagement> makeMacPowerManagement() {
    return std::make_unique<MacPowerManagement>();
}

}  // namespace quorvane
