#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacAccessibility.hpp"

#include <cassert>
#include <optional>
#include <string>
#include <type_traits>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

// unconfirmed: check on a Mac first. AXUIElementGetTypeID, AXValueGetType and the
// CFGetTypeID / CFBoolean / CFNumber / CFArray calls in the conversions below are not in the
// fact sheet; they were written from Apple's reference. Every AX call itself is in the sheet.

namespace quorvane {

namespace {

class MacElement final : public AccessibilityElement {
public:
    explicit MacElement(CFRef<AXUIElementRef> ref) : ref_(std::move(ref)) {}
    AXUIElementRef ref() const { return ref_.get(); }

private:
    CFRef<AXUIElementRef> ref_;
};

Element makeElement(CFRef<AXUIElementRef> ref) {
    if (!ref) {
        return nullptr;
    }
    return std::make_shared<MacElement>(std::move(ref));
}

AXUIElementRef refOf(const Element& element) {
    const auto* mac = dynamic_cast<const MacElement*>(element.get());
    return mac ? mac->ref() : nullptr;
}

std::optional<AccessibilityValue> fromAXValue(AXValueRef value) {
    switch (AXValueGetType(value)) {
        case kAXValueTypeCGPoint: {
            CGPoint point{};
            if (AXValueGetValue(value, kAXValueTypeCGPoint, &point)) {
                return Point{point.x, point.y};
            }
            break;
        }
        case kAXValueTypeCGSize: {
            CGSize size{};
            if (AXValueGetValue(value, kAXValueTypeCGSize, &size)) {
                return Size{size.width, size.height};
            }
            break;
        }
        case kAXValueTypeCGRect: {
            CGRect rect{};
            if (AXValueGetValue(value, kAXValueTypeCGRect, &rect)) {
                return Rect(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
            }
            break;
        }
        case kAXValueTypeCFRange: {
            CFRange range{};
            if (AXValueGetValue(value, kAXValueTypeCFRange, &range)) {
                return TextRange{range.location, range.length};
            }
            break;
        }
        default:
            break;
    }
    return std::nullopt;
}

// Nothing for kinds Quorvane does not read.
std::optional<AccessibilityValue> fromCF(CFTypeRef value) {
    const CFTypeID type = CFGetTypeID(value);
    if (type == AXUIElementGetTypeID()) {
        return makeElement(CFRef<AXUIElementRef>::retain(static_cast<AXUIElementRef>(value)));
    }
    if (type == AXValueGetTypeID()) {
        return fromAXValue(static_cast<AXValueRef>(value));
    }
    if (type == CFStringGetTypeID()) {
        return utf8String(static_cast<CFStringRef>(value));
    }
    // The Dock's items name their application by URL (AXURL); CFURLGetString is a Get, +0.
    if (type == CFURLGetTypeID()) {
        return utf8String(CFURLGetString(static_cast<CFURLRef>(value)));
    }
    if (type == CFBooleanGetTypeID()) {
        return static_cast<bool>(CFBooleanGetValue(static_cast<CFBooleanRef>(value)));
    }
    if (type == CFNumberGetTypeID()) {
        double number = 0;
        CFNumberGetValue(static_cast<CFNumberRef>(value), kCFNumberDoubleType, &number);
        return number;
    }
    if (type == CFArrayGetTypeID()) {
        const auto array = static_cast<CFArrayRef>(value);
        std::vector<Element> elements;
        for (CFIndex i = 0; i < CFArrayGetCount(array); ++i) {
            CFTypeRef item = CFArrayGetValueAtIndex(array, i);
            if (item && CFGetTypeID(item) == AXUIElementGetTypeID()) {
                elements.push_back(
                    makeElement(CFRef<AXUIElementRef>::retain(static_cast<AXUIElementRef>(item))));
            }
        }
        return elements;
    }
    return std::nullopt;
}

// Empty for values the system has no attribute form of (element lists).
CFRef<CFTypeRef> toCF(const AccessibilityValue& value) {
    using Ref = CFRef<CFTypeRef>;
    return std::visit(
        [](const auto& v) -> Ref {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, Element>) {
                return Ref::retain(refOf(v));
            } else if constexpr (std::is_same_v<T, Point>) {
                const CGPoint point = CGPointMake(v.x, v.y);
                return Ref::adopt(AXValueCreate(kAXValueTypeCGPoint, &point));
            } else if constexpr (std::is_same_v<T, Size>) {
                const CGSize size = CGSizeMake(v.width, v.height);
                return Ref::adopt(AXValueCreate(kAXValueTypeCGSize, &size));
            } else if constexpr (std::is_same_v<T, Rect>) {
                const CGRect rect = CGRectMake(v.origin.x, v.origin.y, v.size.width, v.size.height);
                return Ref::adopt(AXValueCreate(kAXValueTypeCGRect, &rect));
            } else if constexpr (std::is_same_v<T, TextRange>) {
                const CFRange range = CFRangeMake(v.location, v.length);
                return Ref::adopt(AXValueCreate(kAXValueTypeCFRange, &range));
            } else if constexpr (std::is_same_v<T, std::string>) {
                return Ref::adopt(makeCFString(v).detach());
            } else if constexpr (std::is_same_v<T, bool>) {
                return Ref::retain(v ? kCFBooleanTrue : kCFBooleanFalse);
            } else if constexpr (std::is_same_v<T, double>) {
                return Ref::adopt(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &v));
            } else {
                return {};
            }
        },
        value);
}

class MacAccessibilityObserver final : public AccessibilityObserver {
public:
    static std::unique_ptr<MacAccessibilityObserver> create(
        int pid, Accessibility::ObserverCallback callback, std::int32_t& status) {
        AXObserverRef observer = nullptr;
        status = AXObserverCreate(pid, &notify, &observer);
        if (status != kAXErrorSuccess || !observer) {
            return nullptr;
        }
        return std::unique_ptr<MacAccessibilityObserver>(new MacAccessibilityObserver(
            CFRef<AXObserverRef>::adopt(observer), std::move(callback)));
    }

    ~MacAccessibilityObserver() override {
        if (scheduled_) {
            CFRunLoopRemoveSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer_.get()),
                                  kCFRunLoopCommonModes);
        }
        // Releasing the observer ends its registrations.
    }

    std::int32_t addNotification(const Element& element, std::string_view name) override {
        const AXUIElementRef ref = refOf(element);
        const CFRef<CFStringRef> notification = makeCFString(name);
        if (!ref || !notification) {
            return kAXErrorIllegalArgument;
        }
        // This object is the context: the callback finds its owner through it.
        return AXObserverAddNotification(observer_.get(), ref, notification.get(), this);
    }

    std::int32_t removeNotification(const Element& element, std::string_view name) override {
        const AXUIElementRef ref = refOf(element);
        const CFRef<CFStringRef> notification = makeCFString(name);
        if (!ref || !notification) {
            return kAXErrorIllegalArgument;
        }
        return AXObserverRemoveNotification(observer_.get(), ref, notification.get());
    }

    void schedule() override {
        if (scheduled_) {
            return;
        }
        scheduled_ = true;
        CFRunLoopAddSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer_.get()),
                           kCFRunLoopCommonModes);
    }

private:
    MacAccessibilityObserver(CFRef<AXObserverRef> observer,
                             Accessibility::ObserverCallback callback)
        : observer_(std::move(observer)), callback_(std::move(callback)) {}

    static void notify(AXObserverRef, AXUIElementRef element, CFStringRef notification,
                       void* refcon) {
        if (!refcon) {
            return;
        }
        assert([NSThread isMainThread]);
        auto* self = static_cast<MacAccessibilityObserver*>(refcon);
        try {
            self->callback_(makeElement(CFRef<AXUIElementRef>::retain(element)),
                            utf8String(notification));
        } catch (...) {
            // Nothing may unwind into the accessibility framework.
        }
    }

    CFRef<AXObserverRef> observer_;
    Accessibility::ObserverCallback callback_;
    bool scheduled_ = false;
};

// Takes ownership of what a Copy call returned (+1, even alongside a failure status) and
// converts it; a kind Quorvane never reads, such as a date, reads as no value.
std::int32_t adoptCopiedValue(AXError status, CFTypeRef raw, AccessibilityValue& value) {
    const auto owned = CFRef<CFTypeRef>::adopt(raw);
    if (status != kAXErrorSuccess) {
        return status;
    }
    if (!owned) {
        return kAXErrorNoValue;
    }
    auto converted = fromCF(owned.get());
    if (!converted) {
        return kAXErrorNoValue;
    }
    value = std::move(*converted);
    return kAXErrorSuccess;
}

}  // namespace

Element MacAccessibility::systemWide() {
    return makeElement(CFRef<AXUIElementRef>::adopt(AXUIElementCreateSystemWide()));
}

Element MacAccessibility::application(int pid) {
    return makeElement(CFRef<AXUIElementRef>::adopt(AXUIElementCreateApplication(pid)));
}

std::int32_t MacAccessibility::copyAttribute(const Element& element, std::string_view attribute,
                                             AccessibilityValue& value) {
    const AXUIElementRef ref = refOf(element);
    const CFRef<CFStringRef> name = makeCFString(attribute);
    if (!ref || !name) {
        return kAXErrorIllegalArgument;
    }
    CFTypeRef raw = nullptr;
    const AXError status = AXUIElementCopyAttributeValue(ref, name.get(), &raw);
    return adoptCopiedValue(status, raw, value);
}

std::int32_t MacAccessibility::copyParameterizedAttribute(const Element& element,
                                                          std::string_view attribute,
                                                          const AccessibilityValue& parameter,
                                                          AccessibilityValue& value) {
    const AXUIElementRef ref = refOf(element);
    const CFRef<CFStringRef> name = makeCFString(attribute);
    const CFRef<CFTypeRef> cfParameter = toCF(parameter);
    if (!ref || !name || !cfParameter) {
        return kAXErrorIllegalArgument;
    }
    CFTypeRef raw = nullptr;
    const AXError status =
        AXUIElementCopyParameterizedAttributeValue(ref, name.get(), cfParameter.get(), &raw);
    return adoptCopiedValue(status, raw, value);
}

std::int32_t MacAccessibility::setAttribute(const Element& element, std::string_view attribute,
                                            const AccessibilityValue& value) {
    const AXUIElementRef ref = refOf(element);
    const CFRef<CFStringRef> name = makeCFString(attribute);
    const CFRef<CFTypeRef> cfValue = toCF(value);
    if (!ref || !name || !cfValue) {
        return kAXErrorIllegalArgument;
    }
    return AXUIElementSetAttributeValue(ref, name.get(), cfValue.get());
}

std::int32_t MacAccessibility::elementAtPosition(const Element& application, float x, float y,
                                                 Element& element) {
    const AXUIElementRef ref = refOf(application);
    if (!ref) {
        return kAXErrorIllegalArgument;
    }
    AXUIElementRef found = nullptr;
    const AXError status = AXUIElementCopyElementAtPosition(ref, x, y, &found);
    auto owned = CFRef<AXUIElementRef>::adopt(found);
    if (status == kAXErrorSuccess) {
        element = makeElement(std::move(owned));
    }
    return status;
}

std::int32_t MacAccessibility::pid(const Element& element, int& pid) {
    const AXUIElementRef ref = refOf(element);
    if (!ref) {
        return kAXErrorIllegalArgument;
    }
    pid_t value = 0;
    const AXError status = AXUIElementGetPid(ref, &value);
    pid = static_cast<int>(value);
    return status;
}

std::int32_t MacAccessibility::performAction(const Element& element, std::string_view action) {
    const AXUIElementRef ref = refOf(element);
    const CFRef<CFStringRef> name = makeCFString(action);
    if (!ref || !name) {
        return kAXErrorIllegalArgument;
    }
    return AXUIElementPerformAction(ref, name.get());
}

std::int32_t MacAccessibility::setMessagingTimeout(const Element& element, float seconds) {
    const AXUIElementRef ref = refOf(element);
    if (!ref) {
        return kAXErrorIllegalArgument;
    }
    return AXUIElementSetMessagingTimeout(ref, seconds);
}

std::unique_ptr<AccessibilityObserver> MacAccessibility::createObserver(int pid,
                                                                        ObserverCallback callback,
                                                                        std::int32_t& status) {
    return MacAccessibilityObserver::create(pid, std::move(callback), status);
}

}  // namespace quorvane
