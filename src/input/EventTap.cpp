#include "input/EventTap.hpp"

namespace quorvane {

std::uint64_t EventTap::mask(std::span<const EventType> types,
                             std::span<const std::uint32_t> rawTypes) {
    std::uint64_t bits = 0;
    const auto add = [&bits](std::uint32_t n) {
        // Shifting by 64 or more is undefined, and no such type fits in a mask anyway.
        if (n < 64) {
            bits |= std::uint64_t{1} << n;
        }
    };
    for (const EventType type : types) {
        add(raw(type));
    }
    for (const std::uint32_t n : rawTypes) {
        add(n);
    }
    return bits;
}

std::string EventTap::refusedError(std::string_view action) {
    return "Quorvane couldn't " + std::string(action) +
           ". Allow it under Accessibility in System Settings.";
}

std::unique_ptr<EventTap> EventTap::create(EventSystem& system, std::span<const EventType> types,
                                           std::span<const std::uint32_t> rawTypes,
                                           Handler handler) {
    std::unique_ptr<EventTap> tap(new EventTap(std::move(handler)));
    // The callback can only run while the handle lives, and the tap owns the handle.
    tap->handle_ = system.createTap(
        mask(types, rawTypes),
        [self = tap.get()](EventType type, Event& event) { return self->deliver(type, event); });
    if (!tap->handle_) {
        return nullptr;
    }
    return tap;
}

bool EventTap::deliver(EventType type, Event& event) {
    // A handler that took too long, or the user's secure input, makes the system switch the
    // tap off and send a notice instead of the next event. Switching it back on right away
    // means the events after the notice arrive again; the notice itself is no event.
    if (raw(type) >= raw(EventType::tapDisabledByTimeout)) {
        if (handle_) {
            handle_->setEnabled(true);
        }
        return true;
    }
    return handler_(type, event);
}

}  // namespace quorvane
