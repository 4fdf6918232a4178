#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/ZoomToggle.hpp"

namespace quorvane {

// A click on a window's green button fills the display's usable area instead of opening a
// full-screen Space; a second click puts the window back. ⌥-click keeps the system's own
// behaviour.
class GreenButtonMaximizeTool : public Tool {
public:
    GreenButtonMaximizeTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    struct Press {
        Element window;
        Rect button;
    };
    bool handle(EventType type, Event& event);
    std::optional<Press> pressAt(Point point);
    void toggle(const Element& window);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    ZoomToggle zoom_;
    std::unique_ptr<EventTap> tap_;
    std::optional<Press> pressed_;
    std::string lastError_;
};

}  // namespace quorvane
