#pragma once

#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/WindowSnapshots.hpp"

namespace quorvane {

// Keeps a snapshot of where the windows are for each set of connected displays, and when the
// displays change (a monitor plugged in or out, the Mac waking), puts the windows back the way
// they were the last time those same displays were connected.
class RestoreWindowLayoutTool : public Tool {
public:
    static constexpr const char* kSnapshotsKey = "restoreWindowLayout.snapshots";
    static constexpr const char* kAfterWakeKey = "restoreWindowLayout.afterWake";
    // macOS keeps shuffling windows for a moment after displays change; restoring sooner
    // would be undone.
    static constexpr Seconds kSettleDelay{2.0};
    static constexpr Seconds kSnapshotInterval{30.0};

    RestoreWindowLayoutTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool restoresAfterWake() const { return afterWake_; }
    void setRestoresAfterWake(bool on);
    const WindowSnapshots& snapshots() const { return snapshots_; }
    // Records where the windows are now, for the displays connected now.
    void takeSnapshot();
    // Puts the windows back as saved for the displays connected now; the number moved.
    int restoreNow();
    void forgetSnapshots();
    int lastRestoredCount() const { return lastRestored_; }
    bool isRunning() const { return running_; }
    const std::string& lastError() const { return lastError_; }

private:
    void displaysChanged(bool woke);
    void settled();
    void save();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    WindowSnapshots snapshots_;
    bool unreadable_ = false;
    bool afterWake_ = true;
    bool running_ = false;
    int lastRestored_ = 0;
    // The display set of the latest snapshot, and whether a wake came since the last change.
    std::string snapshotKey_;
    bool wokeSinceChange_ = false;
    std::vector<Subscription> tokens_;
    Timer snapshotTimer_;
    Timer settleTimer_;
    std::string lastError_;
};

}  // namespace quorvane
