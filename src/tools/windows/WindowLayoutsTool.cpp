#include "tools/windows/WindowLayoutsTool.hpp"

#include <algorithm>

#include "platform/DisplayConfiguration.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/DisplayLayout.hpp"
#include "tools/windows/LayoutRestorePlan.hpp"
#include "tools/windows/OpenWindows.hpp"

namespace quorvane {

namespace {

constexpr const char* kUnreadable =
    "The saved layouts could not be read. They are kept as they are; saving a new layout is "
    "refused until they are fixed or removed (quorvane layouts).";

}  // namespace

WindowLayoutsTool::WindowLayoutsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    layouts_ = WindowSnapshots::load(platform_.preferences, kLayoutsKey, unreadable_);
    if (unreadable_) {
        lastError_ = kUnreadable;
    }
}

void WindowLayoutsTool::stop() {
    retries_.clear();
}

bool WindowLayoutsTool::save(const std::string& name) {
    if (unreadable_) {
        setLastError(kUnreadable);
        return false;
    }
    if (name.empty()) {
        setLastError("Give the layout a name first");
        return false;
    }
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    OpenWindows open(platform_.workspace, windows_);
    WindowSnapshot snapshot{displays.ids(), OpenWindows::records(open.list()),
                            platform_.scheduler.date()};
    if (snapshot.windows.empty()) {
        setLastError("There are no windows to save");
        return false;
    }
    std::sort(snapshot.displays.begin(), snapshot.displays.end());
    layouts_.put(name, std::move(snapshot));
    layouts_.save(platform_.preferences, kLayoutsKey);
    setLastError({});
    publish();
    return true;
}

bool WindowLayoutsTool::restore(const std::string& name) {
    const WindowSnapshot* layout = layouts_.find(name);
    if (!layout) {
        setLastError("There is no layout named " + name);
        return false;
    }
    std::vector<std::string> running;
    for (const auto& app : platform_.workspace.runningApplications()) {
        running.push_back(app.bundleID);
    }
    std::string failure;
    for (const auto& bundleID : LayoutRestorePlan::appsToLaunch(layout->windows, running)) {
        if (!platform_.workspace.launchApplication(bundleID) && failure.empty()) {
            failure = "Couldn't open " + bundleID;
        }
    }
    retries_.clear();
    pendingName_ = name;
    place(name);
    for (const Seconds delay : kRetryDelays) {
        retries_.push_back(platform_.scheduler.after(delay, [this] { place(pendingName_); }));
    }
    if (!failure.empty()) {
        setLastError(failure);
    }
    return true;
}

void WindowLayoutsTool::place(const std::string& name) {
    const WindowSnapshot* layout = layouts_.find(name);
    if (!layout) {
        return;
    }
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    OpenWindows open(platform_.workspace, windows_);
    const auto windows = open.list();
    std::string failure;
    for (const auto& move :
         LayoutRestorePlan::make(layout->windows, OpenWindows::records(windows), displays)) {
        const auto& window = windows[move.window];
        const std::int32_t status = windows_.setFrame(window.element, move.frame);
        if (status != Accessibility::kSuccess && failure.empty()) {
            failure = AccessibleWindows::failure(
                "Couldn't move a window of " + window.record.appName, status);
        }
    }
    setLastError(failure);
}

void WindowLayoutsTool::remove(const std::string& name) {
    if (unreadable_ || !layouts_.remove(name)) {
        return;
    }
    layouts_.save(platform_.preferences, kLayoutsKey);
    publish();
}

void WindowLayoutsTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
