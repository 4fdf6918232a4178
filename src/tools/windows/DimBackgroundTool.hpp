#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/AccessibilityWatcher.hpp"
#include "platform/Overlay.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/DimFollower.hpp"

namespace quorvane {

// Shades every window but the focused one: one translucent overlay per display, kept right
// under the focused window in the window order. DimFollower decides when they move.
class DimBackgroundTool : public Tool {
public:
    static constexpr const char* kAmountKey = "dimBackground.amount";
    static constexpr double kDefaultAmount = 0.35;
    static constexpr double kMinimumAmount = 0.1;
    static constexpr double kMaximumAmount = 0.8;
    static constexpr const char* kFocusedWindowChanged = "AXFocusedWindowChanged";
    static constexpr const char* kMainWindowChanged = "AXMainWindowChanged";

    DimBackgroundTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    double amount() const { return amount_; }
    void setAmount(double amount);
    bool isRunning() const { return watcher_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    void buildOverlays();
    // Several notifications come for one change of focus; they are looked at together once
    // the current callback is over.
    void focusMayHaveChanged();
    void follow();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    double amount_ = kDefaultAmount;
    DimFollower follower_;
    std::vector<std::unique_ptr<Overlay>> overlays_;
    std::unique_ptr<AccessibilityWatcher> watcher_;
    std::vector<Subscription> tokens_;
    Timer pending_;
    std::string lastError_;
};

}  // namespace quorvane
