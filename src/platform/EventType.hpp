#pragma once

#include <cstdint>

namespace quorvane {

// The platform's input event types, with their raw numbers. Other numbers occur too (14 for
// system-defined events, 29 for gestures); an EventType holds any 32-bit value.
enum class EventType : std::uint32_t {
    null = 0,
    leftMouseDown = 1,
    leftMouseUp = 2,
    rightMouseDown = 3,
    rightMouseUp = 4,
    mouseMoved = 5,
    leftMouseDragged = 6,
    rightMouseDragged = 7,
    keyDown = 10,
    keyUp = 11,
    flagsChanged = 12,
    systemDefined = 14,
    scrollWheel = 22,
    otherMouseDown = 25,
    otherMouseUp = 26,
    otherMouseDragged = 27,
    gesture = 29,
    // Not events: notices that the system switched a tap off.
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF,
};

constexpr std::uint32_t raw(EventType type) {
    return static_cast<std::uint32_t>(type);
}

}  // namespace quorvane
