#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/UserActionMonitor.hpp"
#include "platform/Platform.hpp"
#include "platform/RunningApplication.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/FocusApp.hpp"
#include "tools/windows/StoppedEvent.hpp"

namespace quorvane {

// Watches every change of the front application and puts the user's app back when another one
// came forward without being asked to. The allow test is FocusStealingPolicy; this tool keeps
// the state it reads (what the user works in, fresh launches, its own restores) and acts.
//
// Free activations after a launch (`userLaunches`): an app earns one when the workspace reports
// its launch within 3 s after a click or key press of the user's (the Dock, Finder, Spotlight,
// a launcher shortcut). Big apps often take longer than the 1.5 s that a click counts for to
// show their first window; that first activation is still the user's, once, within the grace
// period. Apps that start on their own (login items, helpers woken by the system) earn none.
class StopFocusStealingTool : public Tool {
public:
    static constexpr const char* kNoticeKey = "focusStealing.notice";
    static constexpr const char* kGraceKey = "focusStealing.grace";
    static constexpr const char* kAllowedKey = "focusStealing.allowed";
    static constexpr const char* kHistoryKey = "focusStealing.history";
    static constexpr double kDefaultGrace = 15.0;
    // How long before a launch a click still makes it the user's launch.
    static constexpr double kLaunchActionWindow = 3.0;
    // A system process that came forward with no window gets this long to show one.
    static constexpr Seconds kSystemWindowWait{0.25};
    static constexpr Seconds kNoticeDuration{1.5};
    static constexpr const char* kNoticeSymbol = "hand.raised";

    StopFocusStealingTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool showNotice() const { return showNotice_; }
    void setShowNotice(bool on);
    double launchGracePeriod() const { return launchGracePeriod_; }
    void setLaunchGracePeriod(double seconds);
    const std::vector<std::string>& allowedBundleIDs() const { return allowedBundleIDs_; }
    void allow(const std::string& bundleID);
    void disallow(const std::string& bundleID);

    int stoppedThisSession() const { return stoppedThisSession_; }
    const std::vector<StoppedEvent>& history() const { return history_.events(); }
    void removeFromHistory(const Uuid& id);
    const std::optional<FocusApp>& currentApp() const { return currentApp_; }
    const std::map<int, double>& userLaunches() const { return userLaunches_; }
    std::optional<int> restoringPID() const { return restoringPID_; }
    double lastUserSwitch() const { return lastUserSwitch_; }

private:
    static FocusApp describe(const RunningApplication& app);
    void activated(int pid);
    void launched(int pid);
    bool userJustActed() const;
    void stopActivation(const FocusApp& app, const FocusApp& previous);
    void restore(const FocusApp& previous);
    void followUp(const FocusApp& app, const FocusApp& previous);
    bool hasWindowOnScreen(int pid);
    void saveHistory();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    bool showNotice_ = false;
    double launchGracePeriod_ = kDefaultGrace;
    std::vector<std::string> allowedBundleIDs_;
    int stoppedThisSession_ = 0;
    StoppedHistory history_;
    std::optional<FocusApp> currentApp_;
    std::unique_ptr<UserActionMonitor> userActions_;
    std::map<int, double> userLaunches_;
    std::optional<int> restoringPID_;
    double lastUserSwitch_;
    std::vector<Subscription> tokens_;
    Timer restoreTask_;
    Timer followUpTask_;
};

}  // namespace quorvane
