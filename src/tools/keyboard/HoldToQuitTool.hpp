#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/keyboard/HoldToQuitEngine.hpp"

namespace quorvane {

// ⌘Q quits the app in front only when held: the tool's tap swallows ⌘Q, the HUD fills its
// level bar while the keys stay down, and the front app is asked to quit once the bar is full.
class HoldToQuitTool : public Tool {
public:
    static constexpr const char* kHoldKey = "holdToQuit.holdSeconds";
    static constexpr double kMinimumHold = 0.3;
    static constexpr double kMaximumHold = 3.0;
    static constexpr Seconds kTickInterval{1.0 / 30};

    HoldToQuitTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    double holdSeconds() const { return engine_.hold().count(); }
    void setHoldSeconds(double seconds);
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);
    void carryOut(HoldToQuitEngine::Action action);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    HoldToQuitEngine engine_;
    std::unique_ptr<EventTap> tap_;
    std::optional<Timer> ticker_;
    std::string lastError_;
};

}  // namespace quorvane
