#pragma once

#include <memory>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "platform/RunningApplication.hpp"
#include "platform/Timer.hpp"
#include "tools/input/SmoothScrollEngine.hpp"

namespace quorvane {

// Makes a notched mouse wheel glide: its tap swallows each wheel step and a frame timer posts
// the distance as small pixel scrolls. The glide is SmoothScrollEngine's; this tool feeds it
// events, carries out its scrolls and keeps the timer only while a glide is under way.
class SmoothScrollingTool : public Tool {
public:
    static constexpr const char* kSpeedKey = "smoothScroll.speed";
    static constexpr const char* kGlideKey = "smoothScroll.glide";
    static constexpr const char* kMouseSettingsURL =
        "x-apple.systempreferences:com.apple.Mouse-Settings.extension";
    static constexpr const char* kPostFailed =
        "macOS didn't let Quorvane make a scroll event, so the wheel scrolls in steps for now.";
    static constexpr double kMinimumSpeed = 0.25;
    static constexpr double kMaximumSpeed = 4;

    SmoothScrollingTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    double speed() const { return engine_.speed(); }
    void setSpeed(double speed);
    Glide glide() const { return engine_.glide(); }
    void setGlide(Glide glide);
    void openMouseSettings();

    bool isRunning() const { return tap_ != nullptr; }
    bool isGliding() const { return timer_.isActive(); }
    bool frontAppWantsSteps() const { return frontAppWantsSteps_; }
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(Event& event);
    void frame();
    // False when the scroll could not be posted; the glide is then dropped.
    bool carryOut(const SmoothScrollEngine::Outcome& outcome);
    bool post(const SmoothScrollEngine::Scroll& scroll);
    void frontAppChanged(const RunningApplication& app);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    SmoothScrollEngine engine_;
    std::unique_ptr<EventTap> tap_;
    Timer timer_;
    bool frontAppWantsSteps_ = false;
    Subscription activationToken_;
    std::string lastError_;
};

}  // namespace quorvane
