#include "tools/windows/WindowSnapTool.hpp"

namespace quorvane {

SettingsPage WindowSnapTool::settingsPage() {
    SettingsSection shortcuts{"Shortcuts", {}, ""};
    // Checked each time the page is shown, since the other app may have been quit meanwhile.
    if (const auto peer = runningPeerName()) {
        shortcuts.rows.push_back({SettingsRow::Warning{*peer + kPeerWarningSuffix}, {}});
    }
    const SnapShortcuts standard = defaults();
    for (const SnapAction action : kAllSnapActions) {
        SettingsRow::Shortcut row;
        row.label = std::string(title(action));
        row.symbol = std::string(symbol(action));
        row.displayText = [this, action] {
            const auto& combo = shortcuts_[action];
            return combo ? combo->displayText() : std::string();
        };
        row.hasConflict = [this, action] { return conflicts_.contains(action); };
        row.conflictNotice = kConflictNotice;
        ShortcutRecorder& recorder = *recorders_.at(action);
        row.isRecording = [&recorder] { return recorder.isRecording(); };
        row.buttonTitle = [this, &recorder, action] {
            return recorder.buttonTitle(shortcuts_[action]);
        };
        row.toggleRecording = [&recorder] { recorder.toggle(); };
        row.stopRecording = [&recorder] { recorder.stop(); };
        row.clear = [this, action] { setShortcut(action, std::nullopt); };
        row.restoreDefault = [this, action, combo = standard.at(action)] {
            setShortcut(action, combo);
        };
        shortcuts.rows.push_back({std::move(row), {}});
    }
    shortcuts.rows.push_back(
        {SettingsRow::Button{kRestoreDefaults, [this] { restoreDefaultShortcuts(); }}, {}});
    shortcuts.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(shortcuts));
    return page;
}

}  // namespace quorvane
