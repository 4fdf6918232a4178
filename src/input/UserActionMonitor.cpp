#include "input/UserActionMonitor.hpp"

#include <algorithm>
#include <array>
#include <limits>

#include "input/InputServices.hpp"
#include "input/UserActionMark.hpp"
#include "platform/EventMonitors.hpp"
#include "platform/EventSystem.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

UserActionMonitor::UserActionMonitor(EventMonitors& monitors, Workspace& workspace,
                                     EventSystem& events, Scheduler& scheduler,
                                     const UserActionMark& mark)
    : monitors_(monitors),
      workspace_(workspace),
      events_(events),
      scheduler_(scheduler),
      mark_(mark),
      lastAction_(UserActionMark::kDistantPast) {}

UserActionMonitor::UserActionMonitor(const Platform& platform)
    : UserActionMonitor(platform.eventMonitors, platform.workspace, platform.events,
                        platform.scheduler, platform.input.userActionMark) {}

void UserActionMonitor::start() {
    if (!tokens_.empty()) {
        return;
    }
    tokens_.push_back(monitors_.addGlobal(kActionMask, [this](const Event&) { record(); }));
    tokens_.push_back(monitors_.addLocal(kActionMask, [this](const Event&) {
        record();
        return true;
    }));
    const auto recordAction = [this](const RunningApplication*) { record(); };
    tokens_.push_back(
        workspace_.observe(WorkspaceNotification::activeSpaceDidChange, recordAction));
    tokens_.push_back(workspace_.observe(WorkspaceNotification::screensDidWake, recordAction));
    tokens_.push_back(workspace_.observeDistributed(kScreenUnlocked, [this] { record(); }));
}

void UserActionMonitor::stop() {
    tokens_.clear();
}

void UserActionMonitor::record() {
    lastAction_ = scheduler_.date();
    recentActions_.push_back(lastAction_);
    while (recentActions_.size() > kMaxRecentActions) {
        recentActions_.pop_front();
    }
}

bool UserActionMonitor::happened(double from, double to) const {
    const auto within = [from, to](double date) { return date >= from && date <= to; };
    return std::any_of(recentActions_.begin(), recentActions_.end(), within) || within(mark_.date);
}

double UserActionMonitor::secondsSinceLastInput() const {
    constexpr std::array<EventType, 4> kTypes = {EventType::leftMouseDown,
                                                 EventType::rightMouseDown,
                                                 EventType::otherMouseDown, EventType::gesture};
    double seconds = std::numeric_limits<double>::infinity();
    for (const EventType type : kTypes) {
        seconds = std::min(
            seconds, events_.secondsSinceLastEvent(EventSystem::SourceState::hidSystem, type));
    }
    return seconds;
}

}  // namespace quorvane
