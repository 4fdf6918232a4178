#include "tools/windows/FocusStealingPolicy.hpp"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr std::array<std::string_view, 12> kSystemApps = {
    "com.apple.SecurityAgent",
    "com.apple.loginwindow",
    "com.apple.UserNotificationCenter",
    "com.apple.coreservices.uiagent",
    "com.apple.dock",
    "com.apple.systemuiserver",
    "com.apple.controlcenter",
    "com.apple.notificationcenterui",
    "com.apple.Spotlight",
    "com.apple.screencaptureui",
    "com.apple.CoreLocationAgent",
    "com.apple.accessibility.universalAccessAuthWarn",
};

}  // namespace

bool FocusStealingPolicy::isSystemApp(std::string_view bundleID) {
    return std::find(kSystemApps.begin(), kSystemApps.end(), bundleID) != kSystemApps.end();
}

bool FocusStealingPolicy::userJustActed(const Context& context) {
    return context.userActedBetween &&
           context.userActedBetween(context.now - kUserActionWindow, context.now);
}

bool FocusStealingPolicy::allows(const FocusApp& app, const FocusApp* previous,
                                 const Context& context) {
    if (userJustActed(context)) {
        return true;
    }
    if (context.userLaunches != nullptr) {
        auto& launches = *context.userLaunches;
        if (const auto found = launches.find(app.pid); found != launches.end()) {
            const bool fresh = context.now - found->second < context.launchGracePeriod;
            launches.erase(found);
            if (fresh) {
                return true;
            }
        }
    }
    // An app the user just opened may come forward while the user has not moved on.
    if (app.launchDate && context.now - *app.launchDate < context.launchGracePeriod &&
        context.userActedBetween &&
        context.userActedBetween(*app.launchDate - 3.0, *app.launchDate + 1.0) &&
        context.lastUserSwitch < *app.launchDate + 1.0) {
        return true;
    }
    const auto& allowed = context.allowedBundleIDs;
    if (!app.bundleID.empty() &&
        std::find(allowed.begin(), allowed.end(), app.bundleID) != allowed.end()) {
        return true;
    }
    if (app.pid == context.ownPID) {
        return true;
    }
    if (previous == nullptr || previous->pid == app.pid || previous->isTerminated ||
        previous->isHidden) {
        return true;
    }
    return isSystemApp(previous->bundleID);
}

}  // namespace quorvane
