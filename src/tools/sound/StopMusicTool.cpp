#include "tools/sound/StopMusicTool.hpp"

#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Workspace.hpp"
#include "tools/sound/MusicLaunchRule.hpp"

namespace quorvane {

StopMusicTool::StopMusicTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    stoppedCount_ =
        std::max<std::int64_t>(0, platform_.preferences.integer(kStoppedCountKey).value_or(0));
}

void StopMusicTool::start() {
    stop();
    userActions_ = std::make_unique<UserActionMonitor>(platform_);
    userActions_->start();
    launches_ = platform_.workspace.observe(WorkspaceNotification::didLaunchApplication,
                                            [this](const RunningApplication* app) {
                                                if (app) {
                                                    launched(*app);
                                                }
                                            });
    publish();
}

void StopMusicTool::stop() {
    launches_ = {};
    if (userActions_) {
        userActions_->stop();
        userActions_.reset();
    }
    lastError_.clear();
    publish();
}

void StopMusicTool::launched(const RunningApplication& app) {
    const bool stopIt = MusicLaunchRule::shouldStop(
        app.bundleID, app.launchDate, platform_.scheduler.date(),
        [this](double from, double to) { return userActions_->happened(from, to); });
    if (!stopIt) {
        return;
    }
    if (!platform_.workspace.terminateApplication(app.pid)) {
        lastError_ = "Couldn't quit Music after it opened by itself";
    } else {
        lastError_.clear();
        platform_.preferences.set(kStoppedCountKey, ++stoppedCount_);
    }
    publish();
}

}  // namespace quorvane
