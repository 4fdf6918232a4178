#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/WindowSnapshots.hpp"

namespace quorvane {

// Named arrangements of windows the user saves and brings back: the apps that are not running
// are opened, and their windows are placed as they appear.
class WindowLayoutsTool : public Tool {
public:
    static constexpr const char* kLayoutsKey = "windowLayouts.layouts";
    // Apps opened for a layout take a moment to show their windows; placing is tried again
    // after each of these delays, counted from the restore.
    static constexpr std::array<Seconds, 4> kRetryDelays = {Seconds(1), Seconds(3), Seconds(6),
                                                            Seconds(10)};

    WindowLayoutsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override {}
    void stop() override;
    SettingsPage settingsPage() override;

    const WindowSnapshots& layouts() const { return layouts_; }
    // Saves the current windows under a name, replacing a layout of that name. False, with
    // lastError set, when the name is empty or nothing can be saved.
    bool save(const std::string& name);
    // Opens the layout's missing apps and places every window it can now and as they appear.
    bool restore(const std::string& name);
    void remove(const std::string& name);
    const std::string& lastError() const { return lastError_; }

private:
    void place(const std::string& name);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    WindowSnapshots layouts_;
    bool unreadable_ = false;
    std::string pendingName_;
    std::string draft_;
    std::vector<Timer> retries_;
    std::string lastError_;
};

}  // namespace quorvane
