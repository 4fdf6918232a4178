#pragma once

#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/DockEdgeWatch.hpp"
#include "tools/windows/DockItems.hpp"

namespace quorvane {

// Brings the Dock to another display as soon as the pointer reaches its bottom edge. macOS
// has no interface for moving the Dock, so the push it waits for is imitated; DockEdgeWatch
// decides when.
class DockInstantSwitchTool : public Tool {
public:
    DockInstantSwitchTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return static_cast<bool>(monitor_); }
    int summoned() const { return summoned_; }
    const std::string& lastError() const { return lastError_; }

private:
    void moved(Point location);
    std::optional<std::size_t> dockDisplay(const DisplayLayout& displays);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    DockItems dock_;
    DockEdgeWatch watch_;
    Subscription monitor_;
    int summoned_ = 0;
    std::string lastError_;
};

}  // namespace quorvane
