#include "tools/keyboard/CleanKeyboardTool.hpp"

#include <algorithm>
#include <array>

#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

CleanKeyboardTool::CleanKeyboardTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    lockTrackpad_ = platform_.preferences.boolean(kLockTrackpadKey).value_or(false);
    if (const auto stored = platform_.preferences.integer(kMinutesKey);
        stored && *stored >= 1 && *stored <= kMaximumMinutes) {
        minutes_ = *stored;
    }
}

CleanKeyboardTool::~CleanKeyboardTool() {
    stop();
}

void CleanKeyboardTool::start() {
    isRunning_ = true;
    publish();
}

void CleanKeyboardTool::stop() {
    unlock();
    isRunning_ = false;
    publish();
}

void CleanKeyboardTool::lock() {
    if (!isRunning_ || isLocked()) {
        return;
    }
    static constexpr std::array kTypes = {
        EventType::keyDown,        EventType::keyUp,         EventType::flagsChanged,
        EventType::systemDefined,  EventType::leftMouseDown, EventType::rightMouseDown,
        EventType::otherMouseDown, EventType::scrollWheel,   EventType::gesture};
    lock_.reset();
    tap_ = EventTap::create(platform_.events, kTypes, {},
                            [this](EventType type, Event& event) { return handle(type, event); });
    if (!tap_) {
        lastError_ = EventTap::refusedError("lock the keyboard");
        publish();
        return;
    }
    lastError_.clear();
    // A lock that nobody can end would leave the Mac unusable: it always ends on its own.
    const Seconds limit{static_cast<double>(minutes_) * 60};
    limit_ = platform_.scheduler.after(limit, [this] { unlock(); });
    platform_.input.hud.show(HUDCard{kLockedImage, kLockedTitle, std::nullopt}, false,
                             limit + Seconds{1}, true);
    publish();
}

void CleanKeyboardTool::unlock() {
    if (!isLocked()) {
        return;
    }
    tap_.reset();
    limit_.reset();
    lock_.reset();
    platform_.input.hud.hide();
    publish();
}

bool CleanKeyboardTool::handle(EventType type, Event& event) {
    const auto outcome = lock_.handle(
        type, static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode)),
        event.integerField(eventField::keyboardAutorepeat) != 0, lockTrackpad_);
    if (outcome.unlock) {
        // Later: the tap that is delivering this event must not be destroyed inside its call.
        limit_ = platform_.scheduler.post([this] { unlock(); });
    }
    return outcome.pass;
}

void CleanKeyboardTool::setLocksTrackpad(bool on) {
    lockTrackpad_ = on;
    platform_.preferences.set(kLockTrackpadKey, on);
    publish();
}

void CleanKeyboardTool::setMinutes(std::int64_t minutes) {
    minutes_ = std::clamp<std::int64_t>(minutes, 1, kMaximumMinutes);
    platform_.preferences.set(kMinutesKey, minutes_);
    publish();
}

std::optional<ToolControl> CleanKeyboardTool::control() {
    return ToolControl{"Clean Keyboard", "sparkles", [this] { return isLocked(); },
                       [this] { isLocked() ? unlock() : lock(); }};
}

}  // namespace quorvane
