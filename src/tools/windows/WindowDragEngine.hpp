#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "base/Rect.hpp"
#include "platform/EventType.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

// The decisions of "move and resize from anywhere", free of any platform: mouse events and the
// time go in; whether to swallow the event and where the window goes come out. The tool owns
// the window itself and carries the placements out.
class WindowDragEngine {
public:
    // The modifier combination that must be held, exactly, among ⌃ ⌥ ⌘ (⇧ may be added).
    enum class Keys { controlCommand, optionCommand, controlOption };
    static std::string_view rawValue(Keys keys);
    static std::optional<Keys> keysFromRawValue(std::string_view raw);

    static constexpr Seconds kMinimumInterval{1.0 / 120.0};
    static constexpr double kMinimumWidth = 160;
    static constexpr double kMinimumHeight = 100;

    // A new origin for the window, and a new size when resizing.
    struct Placement {
        Point position;
        std::optional<Size> size;
        friend bool operator==(const Placement&, const Placement&) = default;
    };
    struct Outcome {
        bool pass = true;
        bool started = false;  // a drag began: the tool may bring the window forward
        std::optional<Placement> place;
    };
    // Answers the frame (accessibility coordinates) of the window under a point, if any. Only
    // asked when the modifiers match, so an ordinary click costs no lookup.
    using WindowFrameAt = std::function<std::optional<Rect>(Point)>;

    explicit WindowDragEngine(Keys keys = Keys::controlCommand) : keys_(keys) {}

    Outcome handle(EventType type, std::uint64_t flags, Point location, Seconds now,
                   const WindowFrameAt& windowFrameAt);

    void setKeys(Keys keys) { keys_ = keys; }
    Keys keys() const { return keys_; }
    bool isDragging() const { return drag_.has_value(); }
    bool isResizing() const { return drag_ && drag_->isResize; }
    // Ends any drag, as when the tool stops.
    void reset();

private:
    struct Drag {
        bool isResize;
        bool isRightButton;
        Point startMouse;
        Rect startFrame;
        int horizontalEdge;
        int verticalEdge;
    };

    bool begin(bool rightButton, std::uint64_t flags, Point location,
               const WindowFrameAt& windowFrameAt);
    Placement placementFor(Point location) const;

    Keys keys_;
    std::optional<Drag> drag_;
    std::optional<Point> pendingMouse_;
    std::optional<Seconds> lastMove_;
};

}  // namespace quorvane
