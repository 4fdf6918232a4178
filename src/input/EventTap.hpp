#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/EventSystem.hpp"

namespace quorvane {

// A tool's own event tap. It exists only while the tool holds it: events of the requested
// types reach the handler from creation on, and destroying the tap ends them. There is no
// shared tap; each owner asks for just the types it needs.
class EventTap {
public:
    // True lets the event through, changed in place or not; false swallows it.
    using Handler = std::function<bool(EventType type, Event& event)>;

    // One bit per type. Numbers of 64 or more cannot be in a mask and are skipped.
    static std::uint64_t mask(std::span<const EventType> types,
                              std::span<const std::uint32_t> rawTypes = {});

    // `rawTypes` is for numbers with no name among the EventType cases. Nothing when the system
    // refuses the tap (no accessibility permission): the owner simply keeps no tap.
    static std::unique_ptr<EventTap> create(EventSystem& system, std::span<const EventType> types,
                                            std::span<const std::uint32_t> rawTypes,
                                            Handler handler);
    static std::unique_ptr<EventTap> create(EventSystem& system,
                                            std::initializer_list<EventType> types,
                                            Handler handler) {
        return create(system, std::span(types.begin(), types.size()), {}, std::move(handler));
    }

    // The one wording every tool shows in lastError when the system refused its tap; `action`
    // says what the tool could not do, as in "watch the keyboard".
    static std::string refusedError(std::string_view action);

    EventTap(const EventTap&) = delete;
    EventTap& operator=(const EventTap&) = delete;

private:
    explicit EventTap(Handler handler) : handler_(std::move(handler)) {}
    bool deliver(EventType type, Event& event);

    Handler handler_;
    std::unique_ptr<EventTapHandle> handle_;
};

}  // namespace quorvane
