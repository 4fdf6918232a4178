#include "input/ShortcutSetting.hpp"

#include "input/HotKeyCenter.hpp"
#include "input/InputServices.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

ShortcutSetting::ShortcutSetting(const Platform& platform, std::string key,
                                 std::optional<KeyCombo> defaultCombo, std::function<void()> action,
                                 std::function<void()> onChange)
    : preferences_(platform.preferences),
      center_(platform.input.hotKeys),
      key_(std::move(key)),
      default_(std::move(defaultCombo)),
      action_(std::move(action)),
      onChange_(onChange ? std::move(onChange) : [] {}),
      shortcut_(KeyCombo::load(preferences_, key_, default_)),
      recorder_(
          platform.eventMonitors, center_, [this](const KeyCombo& combo) { set(combo); },
          [this] { onChange_(); }) {}

void ShortcutSetting::set(std::optional<KeyCombo> shortcut) {
    shortcut_ = std::move(shortcut);
    KeyCombo::save(preferences_, shortcut_, key_);
    if (isActive_) {
        reregister();
    }
    onChange_();
}

void ShortcutSetting::activate() {
    isActive_ = true;
    reregister();
}

void ShortcutSetting::deactivate() {
    isActive_ = false;
    recorder_.stop();
    hotKey_.reset();
}

void ShortcutSetting::reregister() {
    // Given back first, so changing to a combo that differs only in its label is no conflict.
    hotKey_.reset();
    if (shortcut_) {
        hotKey_ = center_.registerCombo(*shortcut_, action_);
    }
    const bool conflict = shortcut_.has_value() && !hotKey_.has_value();
    if (conflict != hasConflict_) {
        hasConflict_ = conflict;
        onChange_();
    }
}

SettingsRow ShortcutSetting::row(std::string label) {
    SettingsRow::Shortcut row;
    row.label = std::move(label);
    row.displayText = [this] { return shortcut_ ? shortcut_->displayText() : std::string(); };
    row.hasConflict = [this] { return hasConflict_; };
    row.conflictNotice = kConflictNotice;
    row.isRecording = [this] { return recorder_.isRecording(); };
    row.buttonTitle = [this] { return recorder_.buttonTitle(shortcut_); };
    row.toggleRecording = [this] { recorder_.toggle(); };
    row.stopRecording = [this] { recorder_.stop(); };
    row.clear = [this] { set(std::nullopt); };
    if (default_) {
        row.restoreDefault = [this] { set(default_); };
    }
    return SettingsRow{std::move(row), {}};
}

}  // namespace quorvane
