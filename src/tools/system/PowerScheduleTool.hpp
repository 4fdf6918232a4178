#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/ChildProcessRun.hpp"
#include "platform/ChildProcessStatus.hpp"
#include "platform/Platform.hpp"
#include "tools/system/PowerSchedule.hpp"

namespace quorvane {

// Hands the user's weekly schedule to power management, which then wakes, sleeps, shuts down
// or restarts the Mac by itself, even while Quorvane is not running. Changing it takes an
// administrator, so each change asks for a password. The schedule found when the tool was
// turned on is kept and put back when it is turned off. While a password window is up the tool
// waits for it: the page says so, an edit that would ask again is refused, and turning the tool
// off closes a window that asked to change the schedule.
class PowerScheduleTool : public Tool {
public:
    static constexpr const char* kWakeKey = "powerSchedule.wake";
    static constexpr const char* kWakeDaysKey = "powerSchedule.wakeDays";
    static constexpr const char* kWakeTimeKey = "powerSchedule.wakeTime";
    static constexpr const char* kStopKey = "powerSchedule.stop";
    static constexpr const char* kStopDaysKey = "powerSchedule.stopDays";
    static constexpr const char* kStopTimeKey = "powerSchedule.stopTime";
    // The pmset arguments that restore the schedule found at start, until it is restored.
    static constexpr const char* kOriginalKey = "powerSchedule.original";
    // What the password window says the password is for.
    static constexpr const char* kPromptReason =
        "Quorvane wants to change when your Mac starts up and goes to sleep.";
    static constexpr const char* kPmset = "/usr/bin/pmset";

    PowerScheduleTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~PowerScheduleTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override;
    SettingsPage settingsPage() override;

    const PowerSchedule& schedule() const { return schedule_; }
    void setSchedule(const PowerSchedule& schedule);
    const std::optional<std::string>& lastError() const { return lastError_; }
    // Whether a password window is up.
    bool isWaiting() const { return request_ != nullptr; }

private:
    void store() const;
    // Asks power management to hold these events; a failure shows in lastError.
    void apply(const RepeatingPowerEvents& events, const std::string& what);
    void restore();
    // Runs pmset through the password window; `done` gets how it ended.
    void requestPmset(const std::vector<std::string>& arguments,
                      std::function<void(const ChildProcessStatus&)> done);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    PowerSchedule schedule_;
    bool running_ = false;
    std::optional<std::string> lastError_;
    std::unique_ptr<ChildProcessRun> request_;
};

}  // namespace quorvane
