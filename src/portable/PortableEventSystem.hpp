#pragma once

#include <limits>

#include "platform/EventSystem.hpp"

namespace quorvane {

// No input events to tap or post outside macOS: taps are refused as without the permission.
class PortableEventSystem : public EventSystem {
public:
    std::unique_ptr<EventTapHandle> createTap(std::uint64_t, TapCallback) override {
        return nullptr;
    }
    std::unique_ptr<Event> makeKeyEvent(SourceState, std::uint16_t, bool) override {
        return nullptr;
    }
    std::unique_ptr<Event> makeMouseEvent(SourceState, EventType, Point, MouseButton) override {
        return nullptr;
    }
    std::unique_ptr<Event> makeScrollEvent(std::optional<SourceState>, ScrollUnit, std::int32_t,
                                           std::int32_t) override {
        return nullptr;
    }
    void post(Location, Event&) override {}
    double secondsSinceLastEvent(SourceState, EventType) override {
        return std::numeric_limits<double>::infinity();
    }
};

}  // namespace quorvane
