#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/AccessibilityWatcher.hpp"
#include "input/UserActionMonitor.hpp"
#include "platform/Platform.hpp"
#include "platform/RunningApplication.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/LastWindowRule.hpp"

namespace quorvane {

// Quits an application when the user closes its last window. Every window's destruction is
// watched; a moment later the application's remaining windows are counted, and
// LastWindowRule decides.
class QuitOnLastWindowTool : public Tool {
public:
    static constexpr const char* kExceptedKey = "quitOnLastWindow.excepted";
    static constexpr const char* kNoticeKey = "quitOnLastWindow.notice";
    // Closing a document often opens the next one, or a sheet replaces a window: the count is
    // taken once the application has had this long to settle.
    static constexpr Seconds kSettleDelay{0.5};
    static constexpr Seconds kQuitTimeout{60.0};
    static constexpr Seconds kNoticeDuration{1.5};
    static constexpr const char* kDestroyed = "AXUIElementDestroyed";
    static constexpr const char* kWindowCreated = "AXWindowCreated";
    static constexpr const char* kFocusedWindowChanged = "AXFocusedWindowChanged";
    static constexpr const char* kMainWindowChanged = "AXMainWindowChanged";

    QuitOnLastWindowTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const std::vector<std::string>& exceptedBundleIDs() const { return excepted_; }
    void except(const std::string& bundleID);
    void unexcept(const std::string& bundleID);
    bool showsNotice() const { return showNotice_; }
    void setShowsNotice(bool on);
    int quitThisSession() const { return quitThisSession_; }
    bool isRunning() const { return watcher_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    void notified(const Element& element, const std::string& notification, int pid);
    void watchWindows(int pid);
    void check(int pid, double closedAt);
    void quit(const RunningApplication& app);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    std::vector<std::string> excepted_;
    bool showNotice_ = true;
    int quitThisSession_ = 0;
    std::unique_ptr<UserActionMonitor> userActions_;
    std::unique_ptr<AccessibilityWatcher> watcher_;
    std::map<int, Timer> checks_;
    std::map<int, Timer> quitWatches_;
    std::string lastError_;
};

}  // namespace quorvane
