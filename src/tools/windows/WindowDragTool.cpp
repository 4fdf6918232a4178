#include "tools/windows/WindowDragTool.hpp"

#include "app/BringToFront.hpp"
#include "input/InputServices.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

WindowDragTool::WindowDragTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    if (const auto raw = platform_.preferences.string(kKeysKey)) {
        if (const auto keys = WindowDragEngine::keysFromRawValue(*raw)) {
            engine_.setKeys(*keys);
        }
    }
    bringsToFront_ = platform_.preferences.boolean(kBringToFrontKey).value_or(true);
}

void WindowDragTool::start() {
    tap_.reset();
    engine_.reset();
    tap_ = EventTap::create(
        platform_.events,
        {EventType::leftMouseDown, EventType::leftMouseDragged, EventType::leftMouseUp,
         EventType::rightMouseDown, EventType::rightMouseDragged, EventType::rightMouseUp},
        [this](EventType type, Event& event) { return handle(type, event); });
    publish();
}

void WindowDragTool::stop() {
    tap_.reset();
    engine_.reset();
    window_.reset();
    publish();
}

void WindowDragTool::setKeys(WindowDragEngine::Keys keys) {
    engine_.setKeys(keys);
    platform_.preferences.set(kKeysKey, WindowDragEngine::rawValue(keys));
    publish();
}

void WindowDragTool::setBringsToFront(bool on) {
    bringsToFront_ = on;
    platform_.preferences.set(kBringToFrontKey, on);
    publish();
}

bool WindowDragTool::handle(EventType type, Event& event) {
    const auto windowFrameAt = [this](Point point) -> std::optional<Rect> {
        window_ = windows_.windowAt(point);
        return windows_.frame(window_);
    };
    const auto outcome = engine_.handle(type, event.flags(), event.location(),
                                        platform_.scheduler.now(), windowFrameAt);
    if (outcome.started && bringsToFront_) {
        bringForward();
    }
    if (outcome.place && window_) {
        place(*outcome.place);
    }
    if (!engine_.isDragging() && !outcome.started) {
        window_.reset();
    }
    return outcome.pass;
}

void WindowDragTool::bringForward() {
    // Marked before the activation, so the activation it causes already counts as the user's.
    platform_.input.userActionMark.date = platform_.scheduler.date();
    windows_.raise(window_);
    if (const auto pid = windows_.pid(window_)) {
        bringToFront(platform_.accessibility, platform_.workspace, *pid);
    }
}

void WindowDragTool::place(const WindowDragEngine::Placement& placement) {
    std::int32_t status = windows_.setPosition(window_, placement.position);
    if (status == Accessibility::kSuccess && placement.size) {
        status = windows_.setSize(window_, *placement.size);
    }
    if (status != Accessibility::kSuccess) {
        setLastError(AccessibleWindows::failure("Couldn't move the window", status));
    } else if (!lastError_.empty()) {
        setLastError({});
    }
}

void WindowDragTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
