#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "base/Subscription.hpp"

namespace quorvane {

class EventMonitors;
class EventSystem;
class Scheduler;
class Workspace;
struct Platform;
struct UserActionMark;

// Remembers when the user last clicked or typed, or did something that counts the same
// (switched Spaces, woke the screens, unlocked), so a tool can ask whether an application came
// forward because of the user. Dates are seconds since 2001-01-01 UTC. Main thread only.
class UserActionMonitor {
public:
    static constexpr std::size_t kMaxRecentActions = 40;
    // Left, right and other mouse down, and key down.
    static constexpr std::uint64_t kActionMask = 0x200040A;
    static constexpr const char* kScreenUnlocked = "com.apple.screenIsUnlocked";

    UserActionMonitor(EventMonitors& monitors, Workspace& workspace, EventSystem& events,
                      Scheduler& scheduler, const UserActionMark& mark);
    explicit UserActionMonitor(const Platform& platform);
    UserActionMonitor(const UserActionMonitor&) = delete;
    UserActionMonitor& operator=(const UserActionMonitor&) = delete;

    void start();
    void stop();
    void record();

    // Whether the user did something at or between the two dates, ends included; Quorvane's
    // own activation mark counts too.
    bool happened(double from, double to) const;
    // Since the last click or gesture anywhere, by the system's count; key presses do not
    // count, so typing into a window does not hide that the mouse has been idle.
    double secondsSinceLastInput() const;

    double lastAction() const { return lastAction_; }
    const std::deque<double>& recentActions() const { return recentActions_; }

private:
    EventMonitors& monitors_;
    Workspace& workspace_;
    EventSystem& events_;
    Scheduler& scheduler_;
    const UserActionMark& mark_;
    double lastAction_;
    std::deque<double> recentActions_;
    std::vector<Subscription> tokens_;
};

}  // namespace quorvane
