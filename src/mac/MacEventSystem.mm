#include "mac/MacPorts.hpp"

#include <cassert>

#include "base/CallWithoutUnwinding.hpp"
#include "mac/CFRef.hpp"
#include "mac/MacEvent.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

class MacEventTap final : public EventTapHandle {
public:
    static std::unique_ptr<MacEventTap> create(std::uint64_t mask,
                                               EventSystem::TapCallback callback) {
        std::unique_ptr<MacEventTap> tap(new MacEventTap(std::move(callback)));
        // An active filter at the head of the session's taps: it may change and drop events.
        // The tap object is the user info, unretained; it outlives the port it owns.
        CFMachPortRef port =
            CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                             static_cast<CGEventMask>(mask), &handle, tap.get());
        if (!port) {
            return nullptr;
        }
        tap->port_ = CFRef<CFMachPortRef>::adopt(port);
        tap->source_ =
            CFRef<CFRunLoopSourceRef>::adopt(CFMachPortCreateRunLoopSource(nullptr, port, 0));
        if (!tap->source_) {
            return nullptr;  // the destructor disables and invalidates the port
        }
        // The common modes keep events coming while a menu tracks or a window resizes.
        CFRunLoopAddSource(CFRunLoopGetMain(), tap->source_.get(), kCFRunLoopCommonModes);
        CGEventTapEnable(port, true);
        return tap;
    }

    ~MacEventTap() override {
        // The order the system asks for: without the invalidate the window server keeps the
        // registration until the process ends, and the port goes before its source.
        if (port_) {
            CGEventTapEnable(port_.get(), false);
            CFMachPortInvalidate(port_.get());
        }
        if (source_) {
            CFRunLoopRemoveSource(CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
        }
        // Members go in reverse: the source is released before the port.
    }

    void setEnabled(bool enabled) override {
        if (port_) {
            CGEventTapEnable(port_.get(), enabled);
        }
    }

private:
    explicit MacEventTap(EventSystem::TapCallback callback) : callback_(std::move(callback)) {}

    static CGEventRef handle(CGEventTapProxy, CGEventType type, CGEventRef event, void* userInfo) {
        if (!userInfo) {
            return event;
        }
        assert([NSThread isMainThread]);
        auto* tap = static_cast<MacEventTap*>(userInfo);
        MacEvent wrapped = MacEvent::borrow(event);
        bool keep = true;  // a failing handler lets the event be
        callWithoutUnwinding([&] { keep = tap->callback_(static_cast<EventType>(type), wrapped); });
        // Returning the same event, unretained, passes it with any change made to it; NULL
        // deletes it.
        return keep ? event : nullptr;
    }

    EventSystem::TapCallback callback_;
    CFRef<CFMachPortRef> port_;
    CFRef<CFRunLoopSourceRef> source_;
};

CFRef<CGEventSourceRef> makeSource(EventSystem::SourceState state) {
    return CFRef<CGEventSourceRef>::adopt(
        CGEventSourceCreate(static_cast<CGEventSourceStateID>(state)));
}

std::unique_ptr<Event> wrap(CGEventRef created, CFRef<CGEventSourceRef> source) {
    auto event = CFRef<CGEventRef>::adopt(created);
    if (!event) {
        return nullptr;
    }
    return std::make_unique<MacEvent>(MacEvent::own(std::move(event), std::move(source)));
}

// Quartz event services. Taps live on the main run loop, so their callbacks, like everything
// else, run on the main thread.
class MacEventSystem final : public EventSystem {
public:
    std::unique_ptr<EventTapHandle> createTap(std::uint64_t mask, TapCallback callback) override {
        return MacEventTap::create(mask, std::move(callback));
    }

    std::unique_ptr<Event> makeKeyEvent(SourceState source, std::uint16_t keyCode,
                                        bool keyDown) override {
        // A source that could not be made is NULL, which the system accepts too.
        auto eventSource = makeSource(source);
        CGEventRef event = CGEventCreateKeyboardEvent(eventSource.get(), keyCode, keyDown);
        return wrap(event, std::move(eventSource));
    }

    std::unique_ptr<Event> makeMouseEvent(SourceState source, EventType type, Point location,
                                          MouseButton button) override {
        auto eventSource = makeSource(source);
        CGEventRef event = CGEventCreateMouseEvent(
            eventSource.get(), static_cast<CGEventType>(raw(type)),
            CGPointMake(location.x, location.y), static_cast<CGMouseButton>(button));
        return wrap(event, std::move(eventSource));
    }

    std::unique_ptr<Event> makeScrollEvent(std::optional<SourceState> source, ScrollUnit unit,
                                           std::int32_t vertical,
                                           std::int32_t horizontal) override {
        // Without a source state the event has no source at all (NULL), as the reference allows.
        auto eventSource = source ? makeSource(*source) : CFRef<CGEventSourceRef>();
        CGEventRef event = CGEventCreateScrollWheelEvent2(
            eventSource.get(), static_cast<CGScrollEventUnit>(unit), 2, vertical, horizontal, 0);
        return wrap(event, std::move(eventSource));
    }

    void post(Location location, Event& event) override {
        if (auto* macEvent = dynamic_cast<MacEvent*>(&event)) {
            CGEventPost(static_cast<CGEventTapLocation>(location), macEvent->ref());
        }
    }

    double secondsSinceLastEvent(SourceState source, EventType type) override {
        return CGEventSourceSecondsSinceLastEventType(static_cast<CGEventSourceStateID>(source),
                                                      static_cast<CGEventType>(raw(type)));
    }
};

}  // namespace

std::unique_ptr<EventSystem> makeMacEventSystem() { return std::make_unique<MacEventSystem>(); }

}  // namespace quorvane
