#include "mac/MacPorts.hpp"

#include <cassert>

#include "base/CallIfSet.hpp"
#include "base/CallWithoutUnwinding.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

OSStatus hotKeyPressed(EventHandlerCallRef, EventRef event, void* userData) {
    assert([NSThread isMainThread]);
    EventHotKeyID hotKeyID{};
    const OSStatus status = GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID,
                                              nullptr, sizeof(hotKeyID), nullptr, &hotKeyID);
    if (status != noErr || !userData) {
        return static_cast<OSStatus>(eventNotHandledErr);
    }
    const auto& handler = *static_cast<HotKeySystem::PressedHandler*>(userData);
    callWithoutUnwinding([&] { callIfSet(handler, hotKeyID.id); });
    // Consumed, even when the handler failed: the key press goes to no other handler or
    // application.
    return static_cast<OSStatus>(noErr);
}

// Carbon hot keys on the application event target, serviced by the main run loop.
class MacHotKeySystem final : public HotKeySystem {
public:
    MacHotKeySystem() = default;
    MacHotKeySystem(const MacHotKeySystem&) = delete;
    MacHotKeySystem& operator=(const MacHotKeySystem&) = delete;

    // Removes the handler, which carries this object as its user data.
    ~MacHotKeySystem() override {
        if (installed_) {
            RemoveEventHandler(installed_);
        }
    }

    std::int32_t installHandler(PressedHandler handler) override {
        handler_ = std::move(handler);
        if (installed_) {
            return noErr;
        }
        // Pressed only; released events are never asked for.
        const EventTypeSpec pressed = {kEventClassKeyboard, kEventHotKeyPressed};
        return InstallEventHandler(GetApplicationEventTarget(), &hotKeyPressed, 1, &pressed,
                                   &handler_, &installed_);
    }

    std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                std::uint32_t signature, std::uint32_t id, Ref& ref) override {
        const EventHotKeyID hotKeyID = {static_cast<OSType>(signature), id};
        EventHotKeyRef hotKey = nullptr;
        const OSStatus status = RegisterEventHotKey(keyCode, carbonModifiers, hotKeyID,
                                                    GetApplicationEventTarget(), 0, &hotKey);
        ref = reinterpret_cast<Ref>(hotKey);
        return status;
    }

    std::int32_t unregisterHotKey(Ref ref) override {
        return UnregisterEventHotKey(reinterpret_cast<EventHotKeyRef>(ref));
    }

private:
    PressedHandler handler_;
    EventHandlerRef installed_ = nullptr;
};

}  // namespace

std::unique_ptr<HotKeySystem> makeMacHotKeySystem() { return std::make_unique<MacHotKeySystem>(); }

}  // namespace quorvane
