#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

// Power-management assertions (IOPMAssertionCreateWithName / IOPMAssertionRelease) and the
// screen lock. Statuses are the system's IOReturn values, 0 for success.
class PowerManagement {
public:
    // The assertion type strings the system knows them by.
    enum class AssertionType {
        preventUserIdleSystemSleep,   // "PreventUserIdleSystemSleep"
        preventUserIdleDisplaySleep,  // "PreventUserIdleDisplaySleep"
    };
    using AssertionID = std::uint32_t;
    // What lockScreen answers when the system offers no way to lock on this version.
    static constexpr int kUnsupported = -1;

    virtual ~PowerManagement() = default;

    // The name is what `pmset -g assertions` shows the user as the reason.
    virtual int createAssertion(AssertionType type, const std::string& name, AssertionID& id) = 0;
    virtual int releaseAssertion(AssertionID id) = 0;
    // Locks the session at once, as the lock item of the Apple menu does.
    virtual int lockScreen() = 0;
};

}  // namespace quorvane
