#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/Subscription.hpp"
#include "input/KeyCombo.hpp"

namespace quorvane {

class Event;
class EventMonitors;
class HotKeyCenter;

// What a shortcut field does while the user types a new shortcut: every registered shortcut is
// suspended, so typing a combination does not fire the tool that holds it; each key press goes
// to the recorder and nowhere else; Escape gives up, and the first key press that makes a
// shortcut ends the recording with it. Presses that cannot be a shortcut (⇧A, a bare letter)
// are ignored and the recording goes on.
class ShortcutRecorder {
public:
    static constexpr const char* kRecordingTitle = "Type a shortcut…";
    static constexpr const char* kEmptyTitle = "Record Shortcut";
    static constexpr const char* kClearSymbol = "xmark.circle.fill";
    static constexpr const char* kClearLabel = "Remove shortcut";
    static constexpr double kButtonWidth = 140;
    // Key-down events only.
    static constexpr std::uint64_t kKeyDownMask = std::uint64_t{1} << 10;

    // `onRecorded` receives the new shortcut; `onChange` is told when recording starts or stops.
    ShortcutRecorder(EventMonitors& monitors, HotKeyCenter& center,
                     std::function<void(const KeyCombo&)> onRecorded,
                     std::function<void()> onChange);
    ShortcutRecorder(const ShortcutRecorder&) = delete;
    ShortcutRecorder& operator=(const ShortcutRecorder&) = delete;
    // A recording cut short leaves the shortcuts running again.
    ~ShortcutRecorder();

    bool isRecording() const { return isRecording_; }
    void start();
    // Harmless when not recording, so the suspended shortcuts are resumed exactly once.
    void stop();
    // The recorder's button: starts, or stops when already recording.
    void toggle() { isRecording_ ? stop() : start(); }

    // The button's title for the bound shortcut.
    std::string buttonTitle(const std::optional<KeyCombo>& shortcut) const;

private:
    bool handleKeyDown(const Event& event);

    EventMonitors& monitors_;
    HotKeyCenter& center_;
    std::function<void(const KeyCombo&)> onRecorded_;
    std::function<void()> onChange_;
    bool isRecording_ = false;
    Subscription monitor_;
};

}  // namespace quorvane
