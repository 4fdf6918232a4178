#include "mac/MacEvent.hpp"

#include <vector>

#include "mac/MacStrings.hpp"

namespace quorvane {

MacEvent MacEvent::borrow(CGEventRef event, NSEvent* appKitEvent) {
    MacEvent result;
    result.event_ = event;
    result.appKitEvent_ = appKitEvent;
    return result;
}

MacEvent MacEvent::own(CFRef<CGEventRef> event, CFRef<CGEventSourceRef> source) {
    MacEvent result;
    result.event_ = event.get();
    result.owned_ = std::move(event);
    result.source_ = std::move(source);
    return result;
}

EventType MacEvent::type() const { return static_cast<EventType>(CGEventGetType(event_)); }

void MacEvent::setType(EventType type) {
    CGEventSetType(event_, static_cast<CGEventType>(raw(type)));
}

std::uint64_t MacEvent::flags() const {
    return static_cast<std::uint64_t>(CGEventGetFlags(event_));
}

void MacEvent::setFlags(std::uint64_t flags) {
    CGEventSetFlags(event_, static_cast<CGEventFlags>(flags));
}

Point MacEvent::location() const {
    const CGPoint point = CGEventGetLocation(event_);
    return {point.x, point.y};
}

void MacEvent::setLocation(Point location) {
    CGEventSetLocation(event_, CGPointMake(location.x, location.y));
}

std::int64_t MacEvent::integerField(std::uint32_t field) const {
    return CGEventGetIntegerValueField(event_, static_cast<CGEventField>(field));
}

void MacEvent::setIntegerField(std::uint32_t field, std::int64_t value) {
    CGEventSetIntegerValueField(event_, static_cast<CGEventField>(field), value);
}

double MacEvent::doubleField(std::uint32_t field) const {
    return CGEventGetDoubleValueField(event_, static_cast<CGEventField>(field));
}

void MacEvent::setDoubleField(std::uint32_t field, double value) {
    CGEventSetDoubleValueField(event_, static_cast<CGEventField>(field), value);
}

std::string MacEvent::unicodeString() const {
    if (!event_) {
        return {};
    }
    // The first call only measures.
    UniCharCount length = 0;
    CGEventKeyboardGetUnicodeString(event_, 0, &length, nullptr);
    if (length == 0) {
        return {};
    }
    std::vector<UniChar> characters(length);
    CGEventKeyboardGetUnicodeString(event_, length, &length, characters.data());
    // unconfirmed: check on a Mac first (CFStringCreateWithCharacters is not in the fact sheet).
    const auto text = CFRef<CFStringRef>::adopt(CFStringCreateWithCharacters(
        kCFAllocatorDefault, characters.data(), static_cast<CFIndex>(length)));
    return utf8String(text.get());
}

std::string MacEvent::charactersIgnoringModifiers() const {
    // AppKit raises an exception when a non-key event is asked for its characters.
    const EventType kind = type();
    if (kind != EventType::keyDown && kind != EventType::keyUp) {
        return {};
    }
    @autoreleasepool {
        NSEvent* event = appKitEvent();
        // unconfirmed: check on a Mac first (charactersIgnoringModifiers is not in the fact
        // sheet; Apple's reference says it ignores every modifier but shift).
        return utf8String(event.charactersIgnoringModifiers);
    }
}

NSEvent* MacEvent::appKitEvent() const {
    if (appKitEvent_ || !event_) {
        return appKitEvent_;
    }
    // +eventWithCGEvent: retains the CGEvent.
    return [NSEvent eventWithCGEvent:event_];
}

NSEvent* MacEvent::systemDefinedEvent() const {
    // AppKit raises an exception when other kinds of event are asked for their subtype or data;
    // nil answers 0 instead.
    return type() == EventType::systemDefined ? appKitEvent() : nil;
}

std::int16_t MacEvent::systemSubtype() const {
    @autoreleasepool {
        // unconfirmed: check on a Mac first (NSEvent's subtype of a tapped system-defined event
        // is not in the fact sheet).
        return static_cast<std::int16_t>(systemDefinedEvent().subtype);
    }
}

std::int64_t MacEvent::systemData1() const {
    @autoreleasepool {
        // unconfirmed: check on a Mac first (data1 is not in the fact sheet).
        return static_cast<std::int64_t>(systemDefinedEvent().data1);
    }
}

}  // namespace quorvane
