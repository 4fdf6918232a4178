#include "mac/MacPowerManagement.hpp"

#include <dlfcn.h>

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

int MacPowerManagement::createAssertion(AssertionType type, const std::string& name,
                                        AssertionID& id) {
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

int MacPowerManagement::releaseAssertion(AssertionID id) { return IOPMAssertionRelease(id); }

int MacPowerManagement::lockScreen() {
    // No public call locks the session. The login framework's SACLockScreenImmediate is what
    // the lock item of the Apple menu uses; it is private, so it is looked up at run time and
    // its absence is answered as "unsupported" rather than a crash.
    // unconfirmed: check on a Mac first (the framework path, the symbol and its int(void) shape).
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

}  // namespace quorvane
