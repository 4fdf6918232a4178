#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/ListPanel.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/OpenWindows.hpp"
#include "tools/windows/WindowPictures.hpp"
#include "tools/windows/WindowSwitcherEngine.hpp"

namespace quorvane {

// Switches between windows rather than apps: the shortcut (⌥⇥) opens a list of every window,
// front to back, each with its picture, on the window behind the front one; each further ⇥
// while the modifiers are held picks the next (⇧⇥ the one before), a click picks one, and
// letting go brings the picked window forward.
class WindowSwitcherTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "windowSwitcher.shortcut";
    static constexpr std::uint32_t kTabKeyCode = 48;
    static constexpr const char* kSymbol = "rectangle.on.rectangle";
    // The longer side of a window's picture, in pixels: twice the row's thumbnail for Retina.
    static constexpr int kPicturePixels = 56;

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
    void close();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    ShortcutSetting shortcut_;
    WindowSwitcherEngine engine_;
    std::vector<OpenWindows::Window> listed_;
    std::unique_ptr<ListPanel> panel_;
    WindowPictures pictures_;
    std::unique_ptr<EventTap> tap_;
    std::string lastError_;
};

}  // namespace quorvane
