#pragma once

#include "support/FakeEventSystem.hpp"

namespace quorvane {

// What the session does with one event: the newest tap (inserted at the head) sees it first,
// and each later tap only if the one before let it through. True when it reached the app.
inline bool dispatch(FakeEventSystem& events, EventType type, FakeEvent& event) {
    const auto taps = events.taps;  // a handler may add or remove taps
    for (auto tap = taps.rbegin(); tap != taps.rend(); ++tap) {
        if (!events.deliver(**tap, type, event)) {
            return false;
        }
    }
    return true;
}

// A discrete wheel step, as a mouse wheel sends it: lines, fixed point and pixels alike.
inline FakeEvent wheelStep(double vertical, double horizontal = 0) {
    FakeEvent event;
    event.eventType = EventType::scrollWheel;
    event.doubles[eventField::scrollFixedPtDeltaAxis1] = vertical;
    event.doubles[eventField::scrollFixedPtDeltaAxis2] = horizontal;
    event.integers[eventField::scrollDeltaAxis1] = static_cast<std::int64_t>(vertical);
    event.integers[eventField::scrollDeltaAxis2] = static_cast<std::int64_t>(horizontal);
    event.integers[eventField::scrollPointDeltaAxis1] = static_cast<std::int64_t>(vertical * 10);
    event.integers[eventField::scrollPointDeltaAxis2] = static_cast<std::int64_t>(horizontal * 10);
    return event;
}

// A two-finger swipe on a trackpad: continuous, with a gesture phase.
inline FakeEvent trackpadSwipe(double vertical) {
    FakeEvent event = wheelStep(vertical);
    event.integers[eventField::scrollIsContinuous] = 1;
    event.integers[eventField::scrollPhase] = 2;  // changed
    return event;
}

}  // namespace quorvane
