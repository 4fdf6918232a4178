#include "tools/windows/RestoreWindowLayoutTool.hpp"

#include <algorithm>

#include "platform/DisplayConfiguration.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/DisplayLayout.hpp"
#include "tools/windows/LayoutRestorePlan.hpp"
#include "tools/windows/OpenWindows.hpp"

namespace quorvane {

namespace {

constexpr const char* kUnreadable =
    "The saved window arrangements could not be read. They are kept as they are and nothing "
    "new is saved until you choose Forget Saved Arrangements.";

}  // namespace

RestoreWindowLayoutTool::RestoreWindowLayoutTool(const ToolDescriptor& descriptor,
                                                 const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    snapshots_ = WindowSnapshots::load(platform_.preferences, kSnapshotsKey, unreadable_);
    afterWake_ = platform_.preferences.boolean(kAfterWakeKey).value_or(true);
    if (unreadable_) {
        lastError_ = kUnreadable;
    }
}

void RestoreWindowLayoutTool::start() {
    stop();
    running_ = true;
    tokens_.push_back(
        platform_.displayConfiguration.observeReconfiguration([this] { displaysChanged(false); }));
    for (const auto notification :
         {WorkspaceNotification::screensDidWake, WorkspaceNotification::didWake}) {
        tokens_.push_back(platform_.workspace.observe(notification, [this](const auto*) {
            if (afterWake_) {
                displaysChanged(true);
            }
        }));
    }
    takeSnapshot();
    snapshotTimer_ = platform_.scheduler.every(kSnapshotInterval, [this] { takeSnapshot(); });
    publish();
}

void RestoreWindowLayoutTool::stop() {
    tokens_.clear();
    snapshotTimer_.cancel();
    settleTimer_.cancel();
    if (running_) {
        running_ = false;
        publish();
    }
}

void RestoreWindowLayoutTool::setRestoresAfterWake(bool on) {
    afterWake_ = on;
    platform_.preferences.set(kAfterWakeKey, on);
    publish();
}

void RestoreWindowLayoutTool::displaysChanged(bool woke) {
    // No snapshot until the windows are back: what macOS left them as is not worth keeping.
    snapshotTimer_.cancel();
    wokeSinceChange_ = wokeSinceChange_ || woke;
    settleTimer_ = platform_.scheduler.after(kSettleDelay, [this] { settled(); });
}

void RestoreWindowLayoutTool::settled() {
    // A change of resolution or of the Dock leaves the same displays connected: the windows
    // stay as the user has them, rather than going back to a snapshot up to half a minute old.
    const std::string key = WindowSnapshot::displayKey(
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration).ids());
    if (key != snapshotKey_ || wokeSinceChange_) {
        restoreNow();
    }
    wokeSinceChange_ = false;
    takeSnapshot();
    snapshotTimer_ = platform_.scheduler.every(kSnapshotInterval, [this] { takeSnapshot(); });
}

void RestoreWindowLayoutTool::takeSnapshot() {
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    if (displays.count() == 0 || unreadable_) {
        return;
    }
    OpenWindows open(platform_.workspace, windows_);
    WindowSnapshot snapshot{displays.ids(), OpenWindows::records(open.list()),
                            platform_.scheduler.date()};
    std::sort(snapshot.displays.begin(), snapshot.displays.end());
    const std::string key = snapshot.displayKey();
    snapshotKey_ = key;
    if (const WindowSnapshot* old = snapshots_.find(key); old && old->windows == snapshot.windows) {
        return;  // unchanged: no write every half minute
    }
    snapshots_.put(key, std::move(snapshot));
    save();
}

int RestoreWindowLayoutTool::restoreNow() {
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    const WindowSnapshot* saved = snapshots_.find(WindowSnapshot::displayKey(displays.ids()));
    if (!saved) {
        return 0;
    }
    OpenWindows open(platform_.workspace, windows_);
    const auto windows = open.list();
    const auto moves =
        LayoutRestorePlan::make(saved->windows, OpenWindows::records(windows), displays);
    std::string failure;
    int moved = 0;
    for (const auto& move : moves) {
        const auto& window = windows[move.window];
        const std::int32_t status = windows_.setFrame(window.element, move.frame);
        if (status == Accessibility::kSuccess) {
            ++moved;
        } else if (failure.empty()) {
            failure = AccessibleWindows::failure(
                "Couldn't move a window of " + window.record.appName, status);
        }
    }
    lastRestored_ = moved;
    if (!unreadable_) {
        setLastError(failure);
    }
    publish();
    return moved;
}

void RestoreWindowLayoutTool::forgetSnapshots() {
    snapshots_ = {};
    unreadable_ = false;
    save();
    setLastError({});
    if (running_) {
        takeSnapshot();
    }
}

void RestoreWindowLayoutTool::save() {
    if (!unreadable_) {
        snapshots_.save(platform_.preferences, kSnapshotsKey);
    }
}

void RestoreWindowLayoutTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
