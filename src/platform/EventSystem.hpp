#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/Point.hpp"
#include "platform/Event.hpp"
#include "platform/EventTapHandle.hpp"

namespace quorvane {

// Quartz event services: taps on the session's input, synthesized events, idle time.
class EventSystem {
public:
    // Where a synthesized event enters the system (CGEventTapLocation).
    enum class Location : std::uint32_t { hid = 0, session = 1, annotatedSession = 2 };
    // Whose key and button state an event source or an idle-time query follows
    // (CGEventSourceStateID).
    enum class SourceState : std::int32_t { privateState = -1, combinedSession = 0, hidSystem = 1 };
    enum class MouseButton : std::uint32_t { left = 0, right = 1, center = 2 };
    enum class ScrollUnit : std::uint32_t { pixel = 0, line = 1 };

    // Called for every event of the requested types and for the notices that the system
    // disabled the tap. True lets the event (changed or not) through; false deletes it.
    using TapCallback = std::function<bool(EventType type, Event& event)>;

    virtual ~EventSystem() = default;

    // An active, head-inserted tap on the session, on the main run loop in the common modes,
    // enabled. Nothing when the system refuses one (no accessibility permission).
    virtual std::unique_ptr<EventTapHandle> createTap(std::uint64_t mask, TapCallback callback) = 0;

    // Nothing when the system cannot make the event.
    virtual std::unique_ptr<Event> makeKeyEvent(SourceState source, std::uint16_t keyCode,
                                                bool keyDown) = 0;
    virtual std::unique_ptr<Event> makeMouseEvent(SourceState source, EventType type,
                                                  Point location, MouseButton button) = 0;
    // CGEventCreateScrollWheelEvent2 with two wheels: wheel 1 vertical, wheel 2 horizontal.
    // No source state gives an event with no source.
    virtual std::unique_ptr<Event> makeScrollEvent(std::optional<SourceState> source,
                                                   ScrollUnit unit, std::int32_t vertical,
                                                   std::int32_t horizontal) = 0;
    virtual void post(Location location, Event& event) = 0;

    // CGEventSourceSecondsSinceLastEventType.
    virtual double secondsSinceLastEvent(SourceState source, EventType type) = 0;
};

}  // namespace quorvane
