#pragma once

#include "platform/EventSystem.hpp"

namespace quorvane {

// Quartz event services. Taps live on the main run loop, so their callbacks, like everything
// else, run on the main thread.
class MacEventSystem final : public EventSystem {
public:
    std::unique_ptr<EventTapHandle> createTap(std::uint64_t mask, TapCallback callback) override;
    std::unique_ptr<Event> makeKeyEvent(SourceState source, std::uint16_t keyCode,
                                        bool keyDown) override;
    std::unique_ptr<Event> makeMouseEvent(SourceState source, EventType type, Point location,
                                          MouseButton button) override;
    std::unique_ptr<Event> makeScrollEvent(std::optional<SourceState> source, ScrollUnit unit,
                                           std::int32_t vertical, std::int32_t horizontal) override;
    void post(Location location, Event& event) override;
    double secondsSinceLastEvent(SourceState source, EventType type) override;
};

}  // namespace quorvane
