#pragma once

#include <cstdint>
#include <string>

#include "base/Point.hpp"
#include "platform/EventType.hpp"

namespace quorvane {

// One low-level input event, as a tap or a monitor delivers it or as Quorvane creates it. A
// tap's handler may change the event in place; the changes go on to the system with it.
class Event {
public:
    virtual ~Event() = default;

    virtual EventType type() const = 0;
    virtual void setType(EventType type) = 0;
    virtual std::uint64_t flags() const = 0;
    virtual void setFlags(std::uint64_t flags) = 0;
    // Global display coordinates: the origin at the top left of the main display.
    virtual Point location() const = 0;
    virtual void setLocation(Point location) = 0;
    virtual std::int64_t integerField(std::uint32_t field) const = 0;
    virtual void setIntegerField(std::uint32_t field, std::int64_t value) = 0;
    virtual double doubleField(std::uint32_t field) const = 0;
    virtual void setDoubleField(std::uint32_t field, double value) = 0;
    // What a key event types, as UTF-8, with its modifiers applied ("ß" for ⌥S).
    virtual std::string unicodeString() const = 0;
    // What the key types without modifiers ("s" for ⌥S), as UTF-8.
    virtual std::string charactersIgnoringModifiers() const = 0;
    // Of a system-defined event (media keys, power button): its subtype and first data word;
    // 0 for every other kind of event.
    virtual std::int16_t systemSubtype() const = 0;
    virtual std::int64_t systemData1() const = 0;
};

}  // namespace quorvane
