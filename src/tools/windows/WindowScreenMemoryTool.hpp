#pragma once

#include <memory>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/AccessibilityWatcher.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/ScreenMemory.hpp"

namespace quorvane {

// Remembers, per application, the display and spot its windows were last moved or resized to,
// and puts each new window of that application there.
class WindowScreenMemoryTool : public Tool {
public:
    static constexpr const char* kPlacesKey = "windowScreenMemory.places";
    static constexpr const char* kRestoreSizeKey = "windowScreenMemory.restoreSize";
    static constexpr Seconds kSaveDelay{1.0};
    static constexpr const char* kWindowCreated = "AXWindowCreated";
    static constexpr const char* kWindowMoved = "AXWindowMoved";
    static constexpr const char* kWindowResized = "AXWindowResized";

    WindowScreenMemoryTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool restoresSize() const { return restoreSize_; }
    void setRestoresSize(bool on);
    const ScreenMemory& memory() const { return memory_; }
    void forget(const std::string& bundleID);
    void forgetAll();
    bool isRunning() const { return watcher_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    void notified(const Element& window, const std::string& notification, int pid);
    bool hasOtherWindow(int pid, const Element& window);
    void place(const Element& window, const std::string& bundleID);
    void scheduleSave();
    void save();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    ScreenMemory memory_;
    bool unreadable_ = false;
    bool restoreSize_ = true;
    bool dirty_ = false;
    std::unique_ptr<AccessibilityWatcher> watcher_;
    Timer saveTimer_;
    std::string lastError_;
};

}  // namespace quorvane
