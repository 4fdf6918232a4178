#include "mac/MacHotKeySystem.hpp"

#include <cassert>

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
    try {
        if (handler) {
            handler(hotKeyID.id);
        }
    } catch (...) {
        // Nothing may unwind into Carbon; the press is consumed all the same.
    }
    // Consumed: the key press goes to no other handler or application.
    return static_cast<OSStatus>(noErr);
}

}  // namespace

MacHotKeySystem::~MacHotKeySystem() {
    if (installed_) {
        RemoveEventHandler(static_cast<EventHandlerRef>(installed_));
    }
}

std::int32_t MacHotKeySystem::installHandler(PressedHandler handler) {
    handler_ = std::move(handler);
    if (installed_) {
        return noErr;
    }
    // Pressed only; released events are never asked for.
    const EventTypeSpec pressed = {kEventClassKeyboard, kEventHotKeyPressed};
    EventHandlerRef ref = nullptr;
    const OSStatus status = InstallEventHandler(GetApplicationEventTarget(), &hotKeyPressed, 1,
                                                &pressed, &handler_, &ref);
    installed_ = ref;
    return status;
}

std::int32_t MacHotKeySystem::registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                             std::uint32_t signature, std::uint32_t id, Ref& ref) {
    const EventHotKeyID hotKeyID = {static_cast<OSType>(signature), id};
    EventHotKeyRef hotKey = nullptr;
    const OSStatus status = RegisterEventHotKey(keyCode, carbonModifiers, hotKeyID,
                                                GetApplicationEventTarget(), 0, &hotKey);
    ref = reinterpret_cast<Ref>(hotKey);
    return status;
}

std::int32_t MacHotKeySystem::unregisterHotKey(Ref ref) {
    return UnregisterEventHotKey(reinterpret_cast<EventHotKeyRef>(ref));
}

}  // namespace quorvane
