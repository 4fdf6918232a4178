#include "tools/windows/WindowDragEngine.hpp"

#include <algorithm>

#include "platform/EventField.hpp"

namespace quorvane {

namespace {

constexpr std::uint64_t kShift = modifierFlag::shift;
constexpr std::uint64_t kControl = modifierFlag::control;
constexpr std::uint64_t kOption = modifierFlag::option;
constexpr std::uint64_t kCommand = modifierFlag::command;

std::uint64_t requiredFlags(WindowDragEngine::Keys keys) {
    switch (keys) {
        case WindowDragEngine::Keys::controlCommand:
            return kControl | kCommand;
        case WindowDragEngine::Keys::optionCommand:
            return kOption | kCommand;
        case WindowDragEngine::Keys::controlOption:
            return kControl | kOption;
    }
    return kControl | kCommand;
}

// Which third of the span the point falls in: −1, 0 or +1. Exactly a third counts as the
// middle. A span of a point or less has no thirds.
int edge(double position, double start, double length) {
    if (length <= 1) {
        return 0;
    }
    const double r = (position - start) / length;
    return r < 1.0 / 3.0 ? -1 : (r > 2.0 / 3.0 ? 1 : 0);
}

}  // namespace

std::string_view WindowDragEngine::rawValue(Keys keys) {
    switch (keys) {
        case Keys::controlCommand:
            return "controlCommand";
        case Keys::optionCommand:
            return "optionCommand";
        case Keys::controlOption:
            return "controlOption";
    }
    return "controlCommand";
}

std::optional<WindowDragEngine::Keys> WindowDragEngine::keysFromRawValue(std::string_view raw) {
    for (const auto keys : {Keys::controlCommand, Keys::optionCommand, Keys::controlOption}) {
        if (rawValue(keys) == raw) {
            return keys;
        }
    }
    return std::nullopt;
}

WindowDragEngine::Outcome WindowDragEngine::handle(EventType type, std::uint64_t flags,
                                                   Point location, Seconds now,
                                                   const WindowFrameAt& windowFrameAt) {
    Outcome outcome;
    switch (type) {
        case EventType::leftMouseDown:
        case EventType::rightMouseDown:
            // A new press always ends whatever drag came before it.
            reset();
            outcome.started =
                begin(type == EventType::rightMouseDown, flags, location, windowFrameAt);
            outcome.pass = !outcome.started;
            return outcome;
        case EventType::leftMouseUp:
        case EventType::rightMouseUp:
            if (!drag_ || drag_->isRightButton != (type == EventType::rightMouseUp)) {
                return outcome;
            }
            if (pendingMouse_) {
                outcome.place = placementFor(*pendingMouse_);
            }
            reset();
            outcome.pass = false;
            return outcome;
        case EventType::leftMouseDragged:
        case EventType::rightMouseDragged:
            if (!drag_ || drag_->isRightButton != (type == EventType::rightMouseDragged)) {
                return outcome;
            }
            outcome.pass = false;
            if (lastMove_ && now - *lastMove_ < kMinimumInterval) {
                // Too soon after the last move: keep the point so that release applies it.
                pendingMouse_ = location;
                return outcome;
            }
            outcome.place = placementFor(location);
            lastMove_ = now;
            pendingMouse_.reset();
            return outcome;
        default:
            return outcome;
    }
}

void WindowDragEngine::reset() {
    drag_.reset();
    pendingMouse_.reset();
}

bool WindowDragEngine::begin(bool rightButton, std::uint64_t flags, Point location,
                             const WindowFrameAt& windowFrameAt) {
    if ((flags & (kControl | kOption | kCommand)) != requiredFlags(keys_)) {
        return false;
    }
    const auto frame = windowFrameAt ? windowFrameAt(location) : std::nullopt;
    if (!frame) {
        return false;
    }
    drag_ = Drag{rightButton || (flags & kShift) != 0,
                 rightButton,
                 location,
                 *frame,
                 edge(location.x, frame->minX(), frame->width()),
                 edge(location.y, frame->minY(), frame->height())};
    return true;
}

WindowDragEngine::Placement WindowDragEngine::placementFor(Point location) const {
    const Drag& d = *drag_;
    const double dx = location.x - d.startMouse.x;
    const double dy = location.y - d.startMouse.y;
    const Rect& start = d.startFrame;
    if (!d.isResize) {
        return {{start.minX() + dx, start.minY() + dy}, std::nullopt};
    }
    // Grabbed in the middle: resize from the bottom-right corner.
    const bool middle = d.horizontalEdge == 0 && d.verticalEdge == 0;
    const int horizontal = middle ? 1 : d.horizontalEdge;
    const int vertical = middle ? 1 : d.verticalEdge;

    double x = start.minX();
    double y = start.minY();
    double width = start.width();
    double height = start.height();
    if (horizontal == 1) {
        width = std::max(kMinimumWidth, start.width() + dx);
    } else if (horizontal == -1) {
        // The right edge stays where it was.
        width = std::max(kMinimumWidth, start.width() - dx);
        x = start.maxX() - width;
    }
    if (vertical == 1) {
        height = std::max(kMinimumHeight, start.height() + dy);
    } else if (vertical == -1) {
        height = std::max(kMinimumHeight, start.height() - dy);
        y = start.maxY() - height;
    }
    return {{x, y}, Size{width, height}};
}

}  // namespace quorvane
