#pragma once

#include <functional>
#include <optional>
#include <string>

#include "input/HotKey.hpp"
#include "input/KeyCombo.hpp"
#include "input/ShortcutRecorder.hpp"
#include "ui/SettingsRow.hpp"

namespace quorvane {

class HotKeyCenter;
class Preferences;
struct Platform;

// A tool's global shortcut: the combo kept under the tool's preference key, its registration
// while the tool runs, the conflict flag when it cannot be registered, and the recorder of the
// settings row. The same in every tool that offers a shortcut.
class ShortcutSetting {
public:
    static constexpr const char* kConflictNotice =
        "Another app or another Quorvane tool already uses this shortcut. Pick a different one.";

    // `action` runs when the shortcut is pressed; `onChange` is told when the shortcut, the
    // conflict flag or the recording state changes, so the tool can publish.
    ShortcutSetting(const Platform& platform, std::string key, std::optional<KeyCombo> defaultCombo,
                    std::function<void()> action, std::function<void()> onChange);
    ShortcutSetting(const ShortcutSetting&) = delete;
    ShortcutSetting& operator=(const ShortcutSetting&) = delete;

    const std::optional<KeyCombo>& shortcut() const { return shortcut_; }
    bool hasConflict() const { return hasConflict_; }
    bool isActive() const { return isActive_; }

    // Stores the choice (nothing means "no shortcut") and, while active, registers it instead
    // of the old one.
    void set(std::optional<KeyCombo> shortcut);
    // At the tool's start: registers the shortcut.
    void activate();
    // At the tool's stop: gives the shortcut back.
    void deactivate();

    ShortcutRecorder& recorder() { return recorder_; }
    SettingsRow row(std::string label);

private:
    void reregister();

    Preferences& preferences_;
    HotKeyCenter& center_;
    std::string key_;
    std::optional<KeyCombo> default_;
    std::function<void()> action_;
    std::function<void()> onChange_;
    std::optional<KeyCombo> shortcut_;
    std::optional<HotKey> hotKey_;
    bool hasConflict_ = false;
    bool isActive_ = false;
    ShortcutRecorder recorder_;
};

}  // namespace quorvane
