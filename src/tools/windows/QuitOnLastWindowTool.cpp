#include "tools/windows/QuitOnLastWindowTool.hpp"

#include <algorithm>

#include "input/InputServices.hpp"
#include "platform/Preferences.hpp"
#include "platform/SystemLog.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

QuitOnLastWindowTool::QuitOnLastWindowTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    excepted_ =
        platform_.preferences.stringArray(kExceptedKey).value_or(std::vector<std::string>{});
    showNotice_ = platform_.preferences.boolean(kNoticeKey).value_or(true);
}

void QuitOnLastWindowTool::start() {
    stop();
    userActions_ = std::make_unique<UserActionMonitor>(platform_);
    userActions_->start();
    watcher_ = std::make_unique<AccessibilityWatcher>(
        platform_.accessibility, platform_.workspace, platform_.scheduler,
        std::vector<std::string>{kFocusedWindowChanged, kMainWindowChanged, kWindowCreated},
        [this](const Element& element, const std::string& notification, int pid) {
            notified(element, notification, pid);
        });
    watcher_->onAppReady = [this](int pid, bool) { watchWindows(pid); };
    watcher_->onAppTerminated = [this](int pid) { checks_.erase(pid); };
    watcher_->start();
    publish();
}

void QuitOnLastWindowTool::stop() {
    checks_.clear();
    quitWatches_.clear();
    if (watcher_) {
        watcher_->stop();
        watcher_.reset();
        publish();
    }
    userActions_.reset();
}

void QuitOnLastWindowTool::watchWindows(int pid) {
    for (const Element& window : windows_.windows(pid)) {
        watcher_->observe(kDestroyed, window, pid);
    }
}

void QuitOnLastWindowTool::notified(const Element& element, const std::string& notification,
                                    int pid) {
    if (notification != kDestroyed) {
        // A window that is new or newly focused: its closing is watched from now on.
        watcher_->observe(kDestroyed, element, pid);
        return;
    }
    const double closedAt = platform_.scheduler.date();
    checks_[pid] = platform_.scheduler.after(kSettleDelay, [this, pid, closedAt] {
        auto done = checks_.extract(pid);  // the timer ends with this callback
        check(pid, closedAt);
    });
}

void QuitOnLastWindowTool::check(int pid, double closedAt) {
    const auto app = platform_.workspace.runningApplication(pid);
    if (!app || app->terminated) {
        return;
    }
    LastWindowRule::App facts;
    facts.bundleID = app->bundleID;
    facts.isRegular = app->activationPolicy == RunningApplication::ActivationPolicy::regular;
    facts.isOwnProcess = pid == platform_.workspace.currentProcessID();
    if (const auto windows = windows_.windowsIfKnown(pid)) {
        facts.windowsKnown = true;
        // Palettes and inspectors are no document: an app showing only those has nothing open.
        facts.windowCount = static_cast<int>(
            std::count_if(windows->begin(), windows->end(),
                          [this](const Element& window) { return !windows_.isFloating(window); }));
    }
    facts.userClosedIt =
        userActions_ &&
        userActions_->happened(closedAt - LastWindowRule::kUserActionWindow, closedAt);
    if (LastWindowRule::decide(facts, excepted_) == LastWindowRule::Verdict::quit) {
        quit(*app);
    }
}

void QuitOnLastWindowTool::quit(const RunningApplication& app) {
    const std::string name = app.name.empty() ? app.bundleID : app.name;
    if (!platform_.workspace.terminateApplication(app.pid)) {
        setLastError("Couldn't ask " + name + " to quit");
        return;
    }
    ++quitThisSession_;
    setLastError({});
    if (showNotice_) {
        HUDCard card;
        card.systemImage = "xmark.square";
        card.title = name + " quit: its last window was closed";
        platform_.input.hud.show(card, true, kNoticeDuration);
    }
    const int pid = app.pid;
    // An app asking about unsaved changes is still running a minute later, as it should be;
    // the trace only helps tell that apart from an app that ignores the request.
    quitWatches_[pid] = platform_.scheduler.after(kQuitTimeout, [this, pid, name] {
        auto done = quitWatches_.extract(pid);
        const auto still = platform_.workspace.runningApplication(pid);
        if (still && !still->terminated) {
            platform_.systemLog.error(name + " didn't quit within a minute");
        }
    });
    publish();
}

void QuitOnLastWindowTool::except(const std::string& bundleID) {
    if (bundleID.empty() ||
        std::find(excepted_.begin(), excepted_.end(), bundleID) != excepted_.end()) {
        return;
    }
    excepted_.push_back(bundleID);
    platform_.preferences.set(kExceptedKey, PreferenceValue::stringArray(excepted_));
    publish();
}

void QuitOnLastWindowTool::unexcept(const std::string& bundleID) {
    std::erase(excepted_, bundleID);
    platform_.preferences.set(kExceptedKey, PreferenceValue::stringArray(excepted_));
    publish();
}

void QuitOnLastWindowTool::setShowsNotice(bool on) {
    showNotice_ = on;
    platform_.preferences.set(kNoticeKey, on);
    publish();
}

void QuitOnLastWindowTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
