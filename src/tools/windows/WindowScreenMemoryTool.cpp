#include "tools/windows/WindowScreenMemoryTool.hpp"

#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

namespace {

constexpr const char* kUnreadable =
    "The remembered places could not be read. They are kept as they are and nothing new is "
    "remembered until you choose Forget All.";

}  // namespace

WindowScreenMemoryTool::WindowScreenMemoryTool(const ToolDescriptor& descriptor,
                                               const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    restoreSize_ = platform_.preferences.boolean(kRestoreSizeKey).value_or(true);
    if (const auto data = platform_.preferences.data(kPlacesKey)) {
        const auto decoded = ScreenMemory::decode(
            std::string_view(reinterpret_cast<const char*>(data->data()), data->size()));
        unreadable_ = !decoded;
        memory_ = decoded.value_or(ScreenMemory{});
    }
    if (unreadable_) {
        lastError_ = kUnreadable;
    }
}

void WindowScreenMemoryTool::start() {
    stop();
    watcher_ = std::make_unique<AccessibilityWatcher>(
        platform_.accessibility, platform_.workspace, platform_.scheduler,
        std::vector<std::string>{kWindowCreated, kWindowMoved, kWindowResized},
        [this](const Element& element, const std::string& notification, int pid) {
            notified(element, notification, pid);
        });
    watcher_->start();
    publish();
}

void WindowScreenMemoryTool::stop() {
    saveTimer_.cancel();
    if (dirty_) {
        save();
    }
    if (watcher_) {
        watcher_->stop();
        watcher_.reset();
        publish();
    }
}

void WindowScreenMemoryTool::notified(const Element& window, const std::string& notification,
                                      int pid) {
    const auto app = platform_.workspace.runningApplication(pid);
    if (!app || app->bundleID.empty() || !windows_.isStandard(window)) {
        return;  // sheets, panels and pop-ups keep wherever their app puts them
    }
    if (notification == kWindowCreated) {
        if (!hasOtherWindow(pid, window)) {
            place(window, app->bundleID);
        }
        return;
    }
    if (notification != kWindowMoved && notification != kWindowResized) {
        return;
    }
    const auto frame = windows_.frame(window);
    if (!frame || unreadable_) {
        return;
    }
    memory_.remember(app->bundleID, *frame,
                     DisplayLayout::read(platform_.screens, platform_.displayConfiguration));
    scheduleSave();
}

bool WindowScreenMemoryTool::hasOtherWindow(int pid, const Element& window) {
    // An app that reopens several windows at launch, or adds one beside another, places them
    // relative to each other; moving them all to one spot would pile them up.
    const auto own = windows_.title(window);
    const auto frame = windows_.frame(window);
    for (const Element& other : windows_.windows(pid)) {
        if (other == window || !windows_.isStandard(other) || windows_.isMinimized(other)) {
            continue;
        }
        // The same window as another element: the app lists the new window already.
        if (windows_.title(other) == own && windows_.frame(other) == frame) {
            continue;
        }
        return true;
    }
    return false;
}

void WindowScreenMemoryTool::place(const Element& window, const std::string& bundleID) {
    const auto frame = windows_.frame(window);
    if (!frame) {
        return;
    }
    const auto target = memory_.placement(
        bundleID, *frame, DisplayLayout::read(platform_.screens, platform_.displayConfiguration),
        !restoreSize_);
    if (!target) {
        return;
    }
    const std::int32_t status = windows_.setFrame(window, *target);
    if (unreadable_) {
        return;
    }
    setLastError(status == Accessibility::kSuccess
                     ? std::string()
                     : AccessibleWindows::failure("Couldn't place a new window", status));
}

void WindowScreenMemoryTool::setRestoresSize(bool on) {
    restoreSize_ = on;
    platform_.preferences.set(kRestoreSizeKey, on);
    publish();
}

void WindowScreenMemoryTool::forget(const std::string& bundleID) {
    memory_.forget(bundleID);
    save();
    publish();
}

void WindowScreenMemoryTool::forgetAll() {
    memory_.clear();
    unreadable_ = false;
    save();
    setLastError({});
    publish();
}

void WindowScreenMemoryTool::scheduleSave() {
    // A drag moves the window many times a second; one write once it rests is enough.
    dirty_ = true;
    saveTimer_ = platform_.scheduler.after(kSaveDelay, [this] {
        save();
        publish();
    });
}

void WindowScreenMemoryTool::save() {
    dirty_ = false;
    if (unreadable_) {
        return;
    }
    const std::string text = memory_.encode();
    platform_.preferences.set(kPlacesKey, PreferenceValue::Data(text.begin(), text.end()));
}

void WindowScreenMemoryTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
