#include "input/ShortcutRecorder.hpp"

#include "input/HotKeyCenter.hpp"
#include "platform/Event.hpp"
#include "platform/EventField.hpp"
#include "platform/EventMonitors.hpp"

namespace quorvane {

ShortcutRecorder::ShortcutRecorder(EventMonitors& monitors, HotKeyCenter& center,
                                   std::function<void(const KeyCombo&)> onRecorded,
                                   std::function<void()> onChange)
    : monitors_(monitors),
      center_(center),
      onRecorded_(std::move(onRecorded)),
      onChange_(std::move(onChange)) {}

ShortcutRecorder::~ShortcutRecorder() {
    if (isRecording_) {
        isRecording_ = false;
        center_.endRecording(this);
        center_.resume();
    }
}

void ShortcutRecorder::start() {
    if (isRecording_) {
        return;
    }
    // Paused before the other recorder stops, so the shortcuts never go live in between.
    center_.pause();
    center_.beginRecording(this, [this] { stop(); });
    isRecording_ = true;
    monitor_ = monitors_.addLocal(kKeyDownMask,
                                  [this](const Event& event) { return handleKeyDown(event); });
    if (onChange_) {
        onChange_();
    }
}

void ShortcutRecorder::stop() {
    if (!isRecording_) {
        return;
    }
    isRecording_ = false;
    center_.endRecording(this);
    center_.resume();
    monitor_.cancel();
    if (onChange_) {
        onChange_();
    }
}

std::string ShortcutRecorder::buttonTitle(const std::optional<KeyCombo>& shortcut) const {
    if (isRecording_) {
        return kRecordingTitle;
    }
    return shortcut ? shortcut->displayText() : kEmptyTitle;
}

bool ShortcutRecorder::handleKeyDown(const Event& event) {
    if (event.integerField(eventField::keyboardKeycode) == KeyCombo::kEscapeKeyCode) {
        stop();
        return false;
    }
    if (auto combo = KeyCombo::make(event)) {
        // Stopped first, so the new shortcut is registered with the others already live.
        stop();
        onRecorded_(*combo);
    }
    return false;
}

}  // namespace quorvane
