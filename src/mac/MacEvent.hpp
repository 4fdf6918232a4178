#pragma once

#include <string>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "platform/Event.hpp"

namespace quorvane {

// A CGEvent. Borrowed while a tap or a monitor hands it over, owned when Quorvane made it.
class MacEvent final : public Event {
public:
    // Only for the length of a callback; the system keeps the event alive meanwhile.
    static MacEvent borrow(CGEventRef event, NSEvent* appKitEvent = nil);
    static MacEvent own(CFRef<CGEventRef> event, CFRef<CGEventSourceRef> source);

    CGEventRef ref() const { return event_; }

    EventType type() const override;
    void setType(EventType type) override;
    std::uint64_t flags() const override;
    void setFlags(std::uint64_t flags) override;
    Point location() const override;
    void setLocation(Point location) override;
    std::int64_t integerField(std::uint32_t field) const override;
    void setIntegerField(std::uint32_t field, std::int64_t value) override;
    double doubleField(std::uint32_t field) const override;
    void setDoubleField(std::uint32_t field, double value) override;
    std::string unicodeString() const override;
    std::string charactersIgnoringModifiers() const override;
    std::int16_t systemSubtype() const override;
    std::int64_t systemData1() const override;

private:
    MacEvent() = default;
    // The AppKit view of the event, for what only AppKit reads; nil without an event.
    NSEvent* appKitEvent() const;
    // The same for a system-defined event; nil for any other kind.
    NSEvent* systemDefinedEvent() const;

    CGEventRef event_ = nullptr;
    CFRef<CGEventRef> owned_;
    // Kept for as long as the event, whether or not the event retains its source itself.
    CFRef<CGEventSourceRef> source_;
    // The monitor's own event, when there is one: it knows the characters without a round trip.
    NSEvent* appKitEvent_ = nil;
};

}  // namespace quorvane
