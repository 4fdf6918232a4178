#include "tools/windows/StopFocusStealingTool.hpp"

#include <algorithm>
#include <cmath>

#include "app/BringToFront.hpp"
#include "input/InputServices.hpp"
#include "platform/Preferences.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/FocusStealingPolicy.hpp"

namespace quorvane {

StopFocusStealingTool::StopFocusStealingTool(const ToolDescriptor& descriptor,
                                             const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      windows_(platform.accessibility),
      lastUserSwitch_(UserActionMark::kDistantPast) {
    const Preferences& preferences = platform_.preferences;
    showNotice_ = preferences.boolean(kNoticeKey).value_or(false);
    const double grace = preferences.number(kGraceKey).value_or(kDefaultGrace);
    launchGracePeriod_ = std::isfinite(grace) && grace >= 0 ? grace : kDefaultGrace;
    allowedBundleIDs_ = preferences.stringArray(kAllowedKey).value_or(std::vector<std::string>{});
    if (const auto data = preferences.data(kHistoryKey)) {
        // Unreadable history starts empty; the stored value is only replaced by the next stop.
        history_ = StoppedHistory::decode(
                       std::string_view(reinterpret_cast<const char*>(data->data()), data->size()))
                       .value_or(StoppedHistory{});
    }
}

FocusApp StopFocusStealingTool::describe(const RunningApplication& app) {
    FocusApp result;
    result.pid = app.pid;
    result.bundleID = app.bundleID;
    result.name = app.name.empty() ? app.bundleID : app.name;
    if (!app.bundleURL.empty()) {
        result.bundleURL = app.bundleURL;
    }
    result.launchDate = app.launchDate;
    result.isRegular = app.activationPolicy == RunningApplication::ActivationPolicy::regular;
    result.isHidden = app.hidden;
    result.isTerminated = app.terminated;
    return result;
}

void StopFocusStealingTool::start() {
    stop();
    userActions_ = std::make_unique<UserActionMonitor>(platform_);
    userActions_->start();
    Workspace& workspace = platform_.workspace;
    tokens_.push_back(workspace.observe(WorkspaceNotification::didActivateApplication,
                                        [this](const RunningApplication* app) {
                                            if (app) {
                                                activated(app->pid);
                                            }
                                        }));
    tokens_.push_back(workspace.observe(WorkspaceNotification::didLaunchApplication,
                                        [this](const RunningApplication* app) {
                                            if (app) {
                                                launched(app->pid);
                                            }
                                        }));
    tokens_.push_back(workspace.observe(WorkspaceNotification::didTerminateApplication,
                                        [this](const RunningApplication* app) {
                                            if (app) {
                                                userLaunches_.erase(app->pid);
                                            }
                                        }));
    if (const auto front = workspace.frontmostApplication()) {
        currentApp_ = describe(*front);
    }
}

void StopFocusStealingTool::stop() {
    tokens_.clear();
    restoreTask_.cancel();
    followUpTask_.cancel();
    userActions_.reset();
    currentApp_.reset();
    restoringPID_.reset();
}

bool StopFocusStealingTool::userJustActed() const {
    const double now = platform_.scheduler.date();
    return userActions_ &&
           userActions_->happened(now - FocusStealingPolicy::kUserActionWindow, now);
}

void StopFocusStealingTool::launched(int pid) {
    const double now = platform_.scheduler.date();
    std::erase_if(userLaunches_,
                  [&](const auto& entry) { return now - entry.second >= launchGracePeriod_; });
    if (userActions_ && userActions_->happened(now - kLaunchActionWindow, now)) {
        userLaunches_[pid] = now;
    }
}

void StopFocusStealingTool::activated(int pid) {
    const auto running = platform_.workspace.runningApplication(pid);
    if (!running) {
        return;
    }
    const FocusApp app = describe(*running);
    if (restoringPID_ == pid) {
        // The tool's own restore: neither counted nor stopped.
        restoringPID_.reset();
        currentApp_ = app;
        return;
    }
    std::optional<FocusApp> previous = currentApp_;
    if (previous) {
        // Whether it has quit or hidden since is what counts, not how it was then.
        const auto now = platform_.workspace.runningApplication(previous->pid);
        previous->isTerminated = !now || now->terminated;
        previous->isHidden = now && now->hidden;
    }
    if (FocusStealingPolicy::isSystemApp(app.bundleID) && !userJustActed()) {
        currentApp_ = app;
        if (!previous || hasWindowOnScreen(pid)) {
            return;  // a prompt or dialog of the system is showing: never pushed back
        }
        followUp(app, *previous);
        return;
    }
    FocusStealingPolicy::Context context;
    context.now = platform_.scheduler.date();
    context.userActedBetween = [this](double from, double to) {
        return userActions_ && userActions_->happened(from, to);
    };
    context.launchGracePeriod = launchGracePeriod_;
    context.allowedBundleIDs = allowedBundleIDs_;
    context.ownPID = platform_.workspace.currentProcessID();
    context.lastUserSwitch = lastUserSwitch_;
    context.userLaunches = &userLaunches_;
    if (FocusStealingPolicy::allows(app, previous ? &*previous : nullptr, context)) {
        currentApp_ = app;
        if (FocusStealingPolicy::userJustActed(context)) {
            lastUserSwitch_ = context.now;
        }
        return;
    }
    if (previous) {
        stopActivation(app, *previous);
    }
}

bool StopFocusStealingTool::hasWindowOnScreen(int pid) {
    const auto owners = platform_.windowList.onScreenWindowOwners();
    return std::find(owners.begin(), owners.end(), pid) != owners.end();
}

void StopFocusStealingTool::restore(const FocusApp& previous) {
    restoringPID_ = previous.pid;
    const Element window = windows_.focusedWindow(previous.pid);
    restoreTask_ = platform_.scheduler.post([this, pid = previous.pid, window] {
        if (!bringToFront(platform_.accessibility, platform_.workspace, pid)) {
            // No activation will follow, so none may be mistaken for the restore.
            restoringPID_.reset();
        }
        if (window) {
            windows_.raise(window);
        }
    });
}

void StopFocusStealingTool::followUp(const FocusApp& app, const FocusApp& previous) {
    // A system process that took the front with nothing to show (a prompt still on its way,
    // or none at all) gets a moment; if nothing appears and the user did nothing meanwhile,
    // the user's app comes back. It is the system, not a culprit: no count, no history.
    const double since = platform_.scheduler.date();
    followUpTask_ = platform_.scheduler.after(kSystemWindowWait, [this, app, previous, since] {
        const bool stillFront = currentApp_ && currentApp_->pid == app.pid;
        const bool userActed =
            userActions_ && userActions_->happened(since, platform_.scheduler.date());
        if (stillFront && !userActed && !hasWindowOnScreen(app.pid)) {
            restore(previous);
        }
    });
}

void StopFocusStealingTool::stopActivation(const FocusApp& app, const FocusApp& previous) {
    restore(previous);
    ++stoppedThisSession_;
    history_.record(StoppedEvent{Uuid::random(), app.name, app.bundleID, app.bundleURL,
                                 platform_.scheduler.date(), !app.isRegular});
    saveHistory();
    if (showNotice_) {
        platform_.input.hud.show(
            HUDCard{kNoticeSymbol,
                    app.name + " tried to jump in front\nYou're still in " + previous.name +
                        ". Click it in the Dock when you want it.",
                    std::nullopt},
            false, kNoticeDuration);
    }
    publish();
}

void StopFocusStealingTool::saveHistory() {
    const std::string text = history_.encode();
    platform_.preferences.set(kHistoryKey, PreferenceValue::Data(text.begin(), text.end()));
}

void StopFocusStealingTool::removeFromHistory(const Uuid& id) {
    history_.remove(id);
    saveHistory();
    publish();
}

void StopFocusStealingTool::setShowNotice(bool on) {
    showNotice_ = on;
    platform_.preferences.set(kNoticeKey, on);
    publish();
}

void StopFocusStealingTool::setLaunchGracePeriod(double seconds) {
    launchGracePeriod_ = seconds;
    platform_.preferences.set(kGraceKey, seconds);
    publish();
}

void StopFocusStealingTool::allow(const std::string& bundleID) {
    if (bundleID.empty() || std::find(allowedBundleIDs_.begin(), allowedBundleIDs_.end(),
                                      bundleID) != allowedBundleIDs_.end()) {
        return;
    }
    allowedBundleIDs_.push_back(bundleID);
    platform_.preferences.set(kAllowedKey, PreferenceValue::stringArray(allowedBundleIDs_));
    publish();
}

void StopFocusStealingTool::disallow(const std::string& bundleID) {
    std::erase(allowedBundleIDs_, bundleID);
    platform_.preferences.set(kAllowedKey, PreferenceValue::stringArray(allowedBundleIDs_));
    publish();
}

}  // namespace quorvane
