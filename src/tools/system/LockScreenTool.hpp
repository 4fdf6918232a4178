#pragma once

#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// Shortcuts, and a menu tile, that lock the Mac, put it to sleep or turn the display off. The
// tool changes nothing that lasts: its shortcuts are registered while it is on, nothing more.
class LockScreenTool : public Tool {
public:
    enum class Action { lock, sleep, displayOff };
    static constexpr const char* kLockKey = "lockScreen.lockShortcut";
    static constexpr const char* kSleepKey = "lockScreen.sleepShortcut";
    static constexpr const char* kDisplayOffKey = "lockScreen.displayOffShortcut";
    static constexpr const char* kPmset = "/usr/bin/pmset";

    LockScreenTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~LockScreenTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    void perform(Action action);
    const std::optional<std::string>& lastError() const { return lastError_; }
    ShortcutSetting& shortcut(Action action);

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting lock_;
    ShortcutSetting sleep_;
    ShortcutSetting displayOff_;
    bool running_ = false;
    std::optional<std::string> lastError_;
};

}  // namespace quorvane
