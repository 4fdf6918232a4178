#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/OpenWindows.hpp"
#include "tools/windows/WindowSwitcherEngine.hpp"

namespace quorvane {

// Switches between windows rather than apps: the shortcut (⌥⇥) opens a notice naming the
// window behind the front one; each further ⇥ while the modifiers are held picks the next
// (⇧⇥ the one before), and letting go brings the picked window forward.
class WindowSwitcherTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "windowSwitcher.shortcut";
    static constexpr std::uint32_t kTabKeyCode = 48;
    static constexpr const char* kSymbol = "rectangle.on.rectangle";
    static constexpr Seconds kNoticeDuration{10.0};

    WindowSwitcherTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isOpen() const { return engine_.isOpen(); }
    const std::string& lastError() const { return lastError_; }
    // What the shortcut does.
    void pressed();

private:
    bool handle(EventType type, Event& event);
    void show();
    void finish();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    ShortcutSetting shortcut_;
    WindowSwitcherEngine engine_;
    std::vector<OpenWindows::Window> listed_;
    std::unique_ptr<EventTap> tap_;
    std::string lastError_;
};

}  // namespace quorvane
