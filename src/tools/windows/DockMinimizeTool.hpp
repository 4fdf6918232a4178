#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/DockItems.hpp"

namespace quorvane {

// A click on the Dock icon of the app in front hides that app; a click on it again is the
// Dock's own and brings it back.
class DockMinimizeTool : public Tool {
public:
    DockMinimizeTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);
    // The frontmost app's process when the point is on its Dock icon.
    std::optional<int> frontmostIconAt(Point point);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    DockItems dock_;
    std::unique_ptr<EventTap> tap_;
    std::optional<int> pressed_;
    std::string lastError_;
};

}  // namespace quorvane
