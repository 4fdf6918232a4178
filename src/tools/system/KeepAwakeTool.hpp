#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/PowerAssertion.hpp"
#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

// Keeps the Mac, and by choice its display, from sleeping while the tool is on, for a chosen
// time or until turned off. The assertion is the whole effect: it is released on stop, and when
// the time is up the tool switches itself off.
class KeepAwakeTool : public Tool {
public:
    static constexpr const char* kMinutesKey = "keepAwake.minutes";
    static constexpr const char* kDisplayKey = "keepAwake.display";
    static constexpr const char* kAssertionName = "Quorvane Keep Awake";

    KeepAwakeTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~KeepAwakeTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    bool isKeepingAwake() const { return assertion_ && assertion_->isHeld(); }
    // Seconds left of a timed session; nothing when it runs until turned off or is not on.
    std::optional<Seconds> remaining() const;
    const std::optional<std::string>& lastError() const { return lastError_; }
    std::int64_t minutes() const { return minutes_; }
    bool keepsDisplayOn() const { return display_; }
    void setMinutes(std::int64_t minutes);
    void setKeepsDisplayOn(bool on);

private:
    void hold();
    void expire();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::int64_t minutes_;
    bool display_;
    bool running_ = false;
    std::optional<std::string> lastError_;
    std::unique_ptr<PowerAssertion> assertion_;
    std::optional<Seconds> endsAt_;
    Timer timer_;
};

}  // namespace quorvane
