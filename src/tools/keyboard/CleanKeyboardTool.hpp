#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/keyboard/KeyboardLock.hpp"

namespace quorvane {

// Locks the keyboard, its media keys and optionally the trackpad's scrolling so they can be
// wiped. The lock is the tool's own tap; it ends on a click, five presses of Escape, after the
// longest lock time, or when the tool stops, whichever comes first.
class CleanKeyboardTool : public Tool {
public:
    static constexpr const char* kLockTrackpadKey = "cleanKeyboard.lockTrackpad";
    static constexpr const char* kMinutesKey = "cleanKeyboard.minutes";
    static constexpr std::int64_t kDefaultMinutes = 2;
    static constexpr std::int64_t kMaximumMinutes = 10;
    static constexpr const char* kLockedImage = "keyboard.badge.ellipsis";
    static constexpr const char* kLockedTitle = "Keyboard Locked — click or press Esc 5 times";

    CleanKeyboardTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~CleanKeyboardTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    bool isRunning() const { return isRunning_; }
    bool isLocked() const { return tap_ != nullptr; }
    void lock();
    void unlock();
    bool locksTrackpad() const { return lockTrackpad_; }
    void setLocksTrackpad(bool on);
    std::int64_t minutes() const { return minutes_; }
    void setMinutes(std::int64_t minutes);
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    KeyboardLock lock_;
    bool lockTrackpad_ = false;
    std::int64_t minutes_ = kDefaultMinutes;
    bool isRunning_ = false;
    std::unique_ptr<EventTap> tap_;
    std::optional<Timer> limit_;
    std::string lastError_;
};

}  // namespace quorvane
