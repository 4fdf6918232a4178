#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Subscription.hpp"
#include "platform/RepeatingPowerEvents.hpp"

namespace quorvane {

// Power-management assertions (IOPMAssertionCreateWithName / IOPMAssertionRelease), the screen
// lock, the root power domain's sleep and wake messages (IORegisterForSystemPower) and the
// weekly power schedule. Statuses are the system's IOReturn values, 0 for success.
class PowerManagement {
public:
    // The assertion type strings the system knows them by.
    enum class AssertionType {
        preventUserIdleSystemSleep,   // "PreventUserIdleSystemSleep"
        preventUserIdleDisplaySleep,  // "PreventUserIdleDisplaySleep"
    };
    using AssertionID = std::uint32_t;

    // unconfirmed: check on a Mac first. The type strings as documented for
    // kIOPMAssertPreventUserIdleSystemSleep and kIOPMAssertPreventUserIdleDisplaySleep.
    static constexpr const char* typeName(AssertionType type) {
        return type == AssertionType::preventUserIdleDisplaySleep ? "PreventUserIdleDisplaySleep"
                                                                  : "PreventUserIdleSystemSleep";
    }
    // What lockScreen answers when the system offers no way to lock on this version.
    static constexpr int kUnsupported = -1;

    virtual ~PowerManagement() = default;

    // The name is what `pmset -g assertions` shows the user as the reason.
    virtual int createAssertion(AssertionType type, const std::string& name, AssertionID& id) = 0;
    virtual int releaseAssertion(AssertionID id) = 0;
    // Locks the session at once, as the lock item of the Apple menu does.
    virtual int lockScreen() = 0;

    // The messages of the root power domain, by their kIOMessage values.
    static constexpr std::uint32_t kCanSystemSleep = 0xE0000270;      // kIOMessageCanSystemSleep
    static constexpr std::uint32_t kSystemWillSleep = 0xE0000280;     // kIOMessageSystemWillSleep
    static constexpr std::uint32_t kSystemWillNotSleep = 0xE0000290;  // …SystemWillNotSleep
    static constexpr std::uint32_t kSystemHasPoweredOn = 0xE0000300;  // …SystemHasPoweredOn
    // Only the two questions about sleep take an answer; answering any other message is wrong,
    // and leaving these two unanswered holds sleep up for 30 seconds.
    static constexpr bool takesAnswer(std::uint32_t message) {
        return message == kCanSystemSleep || message == kSystemWillSleep;
    }

    // The message, and the acknowledgement (IOAllowPowerChange) that the two "sleep" questions
    // need before the system goes on; it is empty for the messages that take none.
    using SystemPowerHandler =
        std::function<void(std::uint32_t message, std::function<void()> allowPowerChange)>;
    // An empty subscription when the system refused the registration.
    [[nodiscard]] virtual Subscription registerForSystemPower(SystemPowerHandler handler) = 0;
    // IOPMCopyRepeatingPowerEvents; changing them needs an administrator (pmset repeat).
    virtual RepeatingPowerEvents copyRepeatingPowerEvents() = 0;
};

}  // namespace quorvane
