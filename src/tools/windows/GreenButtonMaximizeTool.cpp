#include "tools/windows/GreenButtonMaximizeTool.hpp"

#include "platform/DisplayConfiguration.hpp"
#include "platform/EventField.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

GreenButtonMaximizeTool::GreenButtonMaximizeTool(const ToolDescriptor& descriptor,
                                                 const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {}

void GreenButtonMaximizeTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::leftMouseDown, EventType::leftMouseUp},
                            [this](EventType type, Event& event) { return handle(type, event); });
    setLastError(tap_ ? std::string() : EventTap::refusedError("watch the mouse"));
    publish();
}

void GreenButtonMaximizeTool::stop() {
    pressed_.reset();
    if (tap_) {
        tap_.reset();
        publish();
    }
}

bool GreenButtonMaximizeTool::handle(EventType type, Event& event) {
    if (type == EventType::leftMouseDown) {
        pressed_.reset();
        if ((event.flags() & modifierFlag::option) != 0) {
            return true;
        }
        pressed_ = pressAt(event.location());
        return !pressed_;
    }
    if (type == EventType::leftMouseUp && pressed_) {
        // The down was swallowed, so the up is too; releasing off the button cancels, as it
        // does with the system's own buttons.
        const Press press = std::move(*pressed_);
        pressed_.reset();
        if (press.button.contains(event.location())) {
            toggle(press.window);
        }
        return false;
    }
    return true;
}

std::optional<GreenButtonMaximizeTool::Press> GreenButtonMaximizeTool::pressAt(Point point) {
    if (!ZoomToggle::inButtonCorner(point, platform_.windowList.onScreenWindows())) {
        return std::nullopt;
    }
    const Element window = windows_.windowAt(point);
    if (!window) {
        return std::nullopt;
    }
    // Since full-screen Spaces the green button is the full-screen button; older windows and
    // some apps only have a zoom button.
    Element button = windows_.child(window, "AXFullScreenButton");
    if (!button) {
        button = windows_.child(window, "AXZoomButton");
    }
    const auto frame = windows_.frame(button);
    if (!frame || !frame->contains(point)) {
        return std::nullopt;
    }
    return Press{window, *frame};
}

void GreenButtonMaximizeTool::toggle(const Element& window) {
    const auto frame = windows_.frame(window);
    const auto pid = windows_.pid(window);
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    if (!frame || !pid || displays.count() == 0) {
        platform_.screens.beep();
        return;
    }
    const std::size_t display =
        displays.displayContaining({frame->midX(), frame->midY()}).value_or(0);
    const auto target =
        zoom_.click(*pid, windows_.title(window), *frame, displays.visibleArea(display));
    if (!target) {
        return;
    }
    const std::int32_t status = windows_.setFrame(window, *target);
    setLastError(status == Accessibility::kSuccess
                     ? std::string()
                     : AccessibleWindows::failure("Couldn't resize the window", status));
}

void GreenButtonMaximizeTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
