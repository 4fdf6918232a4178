#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/AccessibleWindows.hpp"

namespace quorvane {

// Keeps one chosen window above all others, toggled with a shortcut or the menu tile. macOS
// lets no app change another app's window level, so the whole mechanism is one port call that
// may refuse; the tool then says so and changes nothing.
class PinWindowTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "pinWindow.shortcut";

    PinWindowTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    // Pins the focused window, or unpins the pinned one when it is focused.
    void toggle();
    std::optional<std::uint32_t> pinned() const { return pinned_; }
    const std::string& lastError() const { return lastError_; }

private:
    void unpin();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    ShortcutSetting shortcut_;
    std::optional<std::uint32_t> pinned_;
    std::string lastError_;
};

}  // namespace quorvane
