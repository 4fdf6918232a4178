#pragma once

#include <map>
#include <string>

#include "platform/Event.hpp"
#include "platform/EventField.hpp"

namespace quorvane {

// An event as plain fields, for feeding taps and monitors and for checking what was posted.
struct FakeEvent : Event {
    EventType eventType = EventType::null;
    std::uint64_t eventFlags = 0;
    Point point;
    std::map<std::uint32_t, std::int64_t> integers;
    std::map<std::uint32_t, double> doubles;
    std::string typed;
    std::string unmodified;
    std::int16_t subtype = 0;
    std::int64_t data1 = 0;

    static FakeEvent keyDown(std::uint32_t keyCode, std::uint64_t flags,
                             std::string characters = {}) {
        FakeEvent event;
        event.eventType = EventType::keyDown;
        event.eventFlags = flags;
        event.integers[eventField::keyboardKeycode] = keyCode;
        event.typed = characters;
        event.unmodified = std::move(characters);
        return event;
    }

    EventType type() const override { return eventType; }
    std::int16_t systemSubtype() const override { return subtype; }
    std::int64_t systemData1() const override { return data1; }
    void setType(EventType type) override { eventType = type; }
    std::uint64_t flags() const override { return eventFlags; }
    void setFlags(std::uint64_t flags) override { eventFlags = flags; }
    Point location() const override { return point; }
    void setLocation(Point location) override { point = location; }
    std::int64_t integerField(std::uint32_t field) const override {
        const auto found = integers.find(field);
        return found == integers.end() ? 0 : found->second;
    }
    void setIntegerField(std::uint32_t field, std::int64_t value) override {
        integers[field] = value;
    }
    double doubleField(std::uint32_t field) const override {
        const auto found = doubles.find(field);
        return found == doubles.end() ? 0 : found->second;
    }
    void setDoubleField(std::uint32_t field, double value) override { doubles[field] = value; }
    std::string unicodeString() const override { return typed; }
    std::string charactersIgnoringModifiers() const override { return unmodified; }
};

}  // namespace quorvane
