#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/EventSystem.hpp"
#include "support/FakeEvent.hpp"

namespace quorvane {

// Taps that tests feed by hand, and a log of the events posted.
struct FakeEventSystem : EventSystem {
    struct Tap {
        std::uint64_t mask = 0;
        bool enabled = true;
        TapCallback callback;
    };
    struct Handle : EventTapHandle {
        Handle(FakeEventSystem& fake, std::shared_ptr<Tap> live) : system(fake), tap(live) {}
        ~Handle() override { std::erase(system.taps, tap); }
        void setEnabled(bool enabled) override { tap->enabled = enabled; }
        FakeEventSystem& system;
        std::shared_ptr<Tap> tap;
    };
    struct Posted {
        Location location;
        FakeEvent event;
    };

    bool refuseTaps = false;
    std::vector<std::shared_ptr<Tap>> taps;
    std::vector<Posted> posted;
    std::map<EventType, double> idleSeconds;

    std::unique_ptr<EventTapHandle> createTap(std::uint64_t mask, TapCallback callback) override {
        if (refuseTaps) {
            return nullptr;
        }
        auto tap = std::make_shared<Tap>(Tap{mask, true, std::move(callback)});
        taps.push_back(tap);
        return std::make_unique<Handle>(*this, tap);
    }
    // What the system does with one event: a disabled tap gets nothing. Answers whether the
    // event went on.
    bool deliver(Tap& tap, EventType type, FakeEvent& event) {
        return !tap.enabled || tap.callback(type, event);
    }
    std::unique_ptr<Event> makeKeyEvent(SourceState, std::uint16_t keyCode, bool keyDown) override {
        auto event = std::make_unique<FakeEvent>();
        event->eventType = keyDown ? EventType::keyDown : EventType::keyUp;
        event->integers[eventField::keyboardKeycode] = keyCode;
        return event;
    }
    std::unique_ptr<Event> makeMouseEvent(SourceState, EventType type, Point location,
                                          MouseButton) override {
        auto event = std::make_unique<FakeEvent>();
        event->eventType = type;
        event->point = location;
        return event;
    }
    // The wheels land where the system puts them: pixels in the point deltas, lines in the
    // line deltas.
    bool refuseScrollEvents = false;
    std::unique_ptr<Event> makeScrollEvent(std::optional<SourceState>, ScrollUnit unit,
                                           std::int32_t vertical,
                                           std::int32_t horizontal) override {
        if (refuseScrollEvents) {
            return nullptr;
        }
        auto event = std::make_unique<FakeEvent>();
        event->eventType = EventType::scrollWheel;
        const bool pixels = unit == ScrollUnit::pixel;
        event->integers[pixels ? eventField::scrollPointDeltaAxis1 : eventField::scrollDeltaAxis1] =
            vertical;
        event->integers[pixels ? eventField::scrollPointDeltaAxis2 : eventField::scrollDeltaAxis2] =
            horizontal;
        return event;
    }
    void post(Location location, Event& event) override {
        posted.push_back({location, dynamic_cast<FakeEvent&>(event)});
    }
    double secondsSinceLastEvent(SourceState, EventType type) override {
        const auto found = idleSeconds.find(type);
        return found == idleSeconds.end() ? 1e9 : found->second;
    }
};

}  // namespace quorvane
