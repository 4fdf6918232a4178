#include "tools/windows/DockMinimizeTool.hpp"

#include "platform/EventField.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

DockMinimizeTool::DockMinimizeTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      dock_(platform.accessibility, platform.workspace) {}

void DockMinimizeTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::leftMouseDown, EventType::leftMouseUp},
                            [this](EventType type, Event& event) { return handle(type, event); });
    setLastError(tap_ ? std::string() : EventTap::refusedError("watch the mouse"));
    publish();
}

void DockMinimizeTool::stop() {
    pressed_.reset();
    if (tap_) {
        tap_.reset();
        publish();
    }
}

bool DockMinimizeTool::handle(EventType type, Event& event) {
    if (type == EventType::leftMouseDown) {
        // ⌘-click shows the app in Finder, ⌥-click hides the others: those stay the Dock's.
        pressed_.reset();
        if ((event.flags() & modifierFlag::mask) == 0) {
            pressed_ = frontmostIconAt(event.location());
        }
        return !pressed_;
    }
    if (type == EventType::leftMouseUp && pressed_) {
        const int pid = *pressed_;
        pressed_.reset();
        if (!platform_.workspace.hideApplication(pid)) {
            setLastError("Couldn't hide the app");
        } else {
            setLastError({});
        }
        return false;
    }
    return true;
}

std::optional<int> DockMinimizeTool::frontmostIconAt(Point point) {
    const auto dockPID = dock_.dockPID();
    if (!dockPID || !DockItems::overDock(point, platform_.windowList.onScreenWindows(), *dockPID)) {
        return std::nullopt;
    }
    const auto front = platform_.workspace.frontmostApplication();
    if (!front) {
        return std::nullopt;
    }
    const auto items = dock_.items();
    const DockItems::Item* item = DockItems::itemAt(point, items);
    if (!item || !item->isApplication || !DockItems::sameBundle(item->url, front->bundleURL)) {
        return std::nullopt;
    }
    return front->pid;
}

void DockMinimizeTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}
}  // namespace quorvane
