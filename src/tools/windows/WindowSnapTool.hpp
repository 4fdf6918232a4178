#pragma once

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/HotKey.hpp"
#include "input/ShortcutRecorder.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/SnapDefaults.hpp"

namespace quorvane {

// Moves and resizes the front window with global shortcuts, one per snap action. The geometry
// is SnapAction's table; this tool reads the window, picks the display and applies the frame.
class WindowSnapTool : public Tool {
public:
    static constexpr const char* kShortcutsKey = "windowSnap.shortcuts";
    static constexpr const char* kConflictNotice = "Another app already uses this shortcut";
    static constexpr const char* kRestoreDefaults = "Restore Default Shortcuts";
    static constexpr const char* kPeerWarningSuffix =
        " is running and uses the same kind of shortcuts. Quit it, or change the shortcuts in "
        "one of them, so each shortcut does one thing.";

    WindowSnapTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const SnapShortcuts& shortcuts() const { return shortcuts_; }
    void setShortcut(SnapAction action, std::optional<KeyCombo> combo);
    void restoreDefaultShortcuts();
    const std::set<SnapAction>& conflicts() const { return conflicts_; }
    bool isActive() const { return isActive_; }
    const std::string& lastError() const { return lastError_; }

    // What a shortcut does: the front window goes where the action says, or the system beeps.
    void perform(SnapAction action);
    // The first running app of the other window-snapping apps the user may have, if any.
    std::optional<std::string> runningPeerName();

private:
    SnapShortcuts defaults();
    void load();
    void save();
    void reregister();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    SnapShortcuts shortcuts_;
    std::set<SnapAction> conflicts_;
    std::map<SnapAction, HotKey> hotKeys_;
    std::map<SnapAction, std::unique_ptr<ShortcutRecorder>> recorders_;
    bool isActive_ = false;
    std::string lastError_;
};

}  // namespace quorvane
