#include "mac/MacPorts.hpp"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/CallWithoutUnwinding.hpp"
#include "base/Overloaded.hpp"
#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"
#include "platform/AccessibilityObjects.hpp"
#include "platform/AccessibilityStructType.hpp"

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

// The portable geometry and range types are laid out as the system's, so an AXValue is read
// and made in place.
static_assert(sizeof(Point) == sizeof(CGPoint) && offsetof(Point, y) == offsetof(CGPoint, y));
static_assert(sizeof(Size) == sizeof(CGSize) && offsetof(Size, height) == offsetof(CGSize, height));
static_assert(sizeof(Rect) == sizeof(CGRect) && offsetof(Rect, size) == offsetof(CGRect, size));
static_assert(sizeof(TextRange) == sizeof(CFRange) &&
              offsetof(TextRange, length) == offsetof(CFRange, length));
static_assert(static_cast<AXValueType>(AccessibilityStructType::point) == kAXValueTypeCGPoint);
static_assert(static_cast<AXValueType>(AccessibilityStructType::size) == kAXValueTypeCGSize);
static_assert(static_cast<AXValueType>(AccessibilityStructType::rect) == kAXValueTypeCGRect);
static_assert(static_cast<AXValueType>(AccessibilityStructType::range) == kAXValueTypeCFRange);

// An illegal argument when the element is not one of ours; else what `call` answers for it.
template <typename Call>
std::int32_t callOn(const Element& element, Call call) {
    const AXUIElementRef ref = refOf(element);
    return ref ? call(ref) : kAXErrorIllegalArgument;
}

// The same, with `name` (an attribute, action or notification) as a CFString, which text that
// is not UTF-8 cannot become.
template <typename Call>
std::int32_t callNamed(const Element& element, std::string_view name, Call call) {
    const CFRef<CFStringRef> cfName = makeCFString(name);
    return cfName ? callOn(element, [&](AXUIElementRef ref) { return call(ref, cfName.get()); })
                  : kAXErrorIllegalArgument;
}

// Core Foundation's objects, call for call; what they are read as is decided in
// readAccessibilityValue.
class AXObjects final : public AccessibilityObjects {
public:
    Type type(Object object) const override {
        const std::pair<CFTypeID, Type> types[] = {
            {AXUIElementGetTypeID(), Type::element}, {AXValueGetTypeID(), Type::structValue},
            {CFStringGetTypeID(), Type::string},     {CFURLGetTypeID(), Type::url},
            {CFBooleanGetTypeID(), Type::boolean},   {CFNumberGetTypeID(), Type::number},
            {CFArrayGetTypeID(), Type::array},
        };
        return kindOf(object, types, Type::other);
    }
    Element element(Object object) const override {
        return makeElement(CFRef<AXUIElementRef>::retain(static_cast<AXUIElementRef>(object)));
    }
    std::uint32_t structType(Object object) const override {
        return AXValueGetType(static_cast<AXValueRef>(object));
    }
    bool readStruct(Object object, std::uint32_t type, void* bytes) const override {
        return AXValueGetValue(static_cast<AXValueRef>(object), static_cast<AXValueType>(type),
                               bytes);
    }
    std::string string(Object object) const override {
        return utf8String(static_cast<CFStringRef>(object));
    }
    // CFURLGetString is a Get: +0, owned by the URL.
    std::string urlString(Object object) const override {
        return utf8String(CFURLGetString(static_cast<CFURLRef>(object)));
    }
    bool boolean(Object object) const override {
        return CFBooleanGetValue(static_cast<CFBooleanRef>(object));
    }
    double number(Object object) const override {
        double value = 0;
        CFNumberGetValue(static_cast<CFNumberRef>(object), kCFNumberDoubleType, &value);
        return value;
    }
    std::vector<Object> elements(Object array) const override {
        return arrayValues(static_cast<CFArrayRef>(array));
    }
};

// Empty for values the system has no attribute form of (element lists). Structs are wrapped in
// an AXValue.
CFRef<CFTypeRef> toCF(const AccessibilityValue& value) {
    using Ref = CFRef<CFTypeRef>;
    if (const auto type = structType(value)) {
        return Ref::adopt(AXValueCreate(static_cast<AXValueType>(*type), structBytes(value)));
    }
    return std::visit(
        Overloaded{
            [](const Element& v) { return Ref::retain(refOf(v)); },
            [](const std::string& v) { return Ref::adopt(makeCFString(v).detach()); },
            [](bool v) { return Ref::retain(v ? kCFBooleanTrue : kCFBooleanFalse); },
            [](double v) {
                return Ref::adopt(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &v));
            },
            [](const auto&) { return Ref(); },
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
        // This object is the context: the callback finds its owner through it.
        return callNamed(element, name, [this](AXUIElementRef ref, CFStringRef notification) {
            return AXObserverAddNotification(observer_.get(), ref, notification, this);
        });
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
        callWithoutUnwinding([&] {
            self->callback_(makeElement(CFRef<AXUIElementRef>::retain(element)),
                            utf8String(notification));
        });
    }

    CFRef<AXObserverRef> observer_;
    Accessibility::ObserverCallback callback_;
    bool scheduled_ = false;
};

// Takes ownership of what a Copy call returned: +1, even alongside a failure status.
std::int32_t adoptCopiedValue(AXError status, CFTypeRef raw, AccessibilityValue& value) {
    const auto owned = CFRef<CFTypeRef>::adopt(raw);
    return readCopiedValue(status, AXObjects(), owned.get(), value);
}

// The accessibility API of HIServices. Elements are AXUIElementRefs held by reference count.
class MacAccessibility final : public Accessibility {
public:
    Element systemWide() override {
        return makeElement(CFRef<AXUIElementRef>::adopt(AXUIElementCreateSystemWide()));
    }

    Element application(int pid) override {
        return makeElement(CFRef<AXUIElementRef>::adopt(AXUIElementCreateApplication(pid)));
    }

    std::int32_t copyAttribute(const Element& element, std::string_view attribute,
                               AccessibilityValue& value) override {
        return callNamed(element, attribute, [&](AXUIElementRef ref, CFStringRef name) {
            CFTypeRef raw = nullptr;
            const AXError status = AXUIElementCopyAttributeValue(ref, name, &raw);
            return adoptCopiedValue(status, raw, value);
        });
    }

    std::int32_t copyParameterizedAttribute(const Element& element, std::string_view attribute,
                                            const AccessibilityValue& parameter,
                                            AccessibilityValue& value) override {
        const CFRef<CFTypeRef> cfParameter = toCF(parameter);
        if (!cfParameter) {
            return kAXErrorIllegalArgument;
        }
        return callNamed(element, attribute, [&](AXUIElementRef ref, CFStringRef name) {
            CFTypeRef raw = nullptr;
            const AXError status =
                AXUIElementCopyParameterizedAttributeValue(ref, name, cfParameter.get(), &raw);
            return adoptCopiedValue(status, raw, value);
        });
    }

    std::int32_t setAttribute(const Element& element, std::string_view attribute,
                              const AccessibilityValue& value) override {
        const CFRef<CFTypeRef> cfValue = toCF(value);
        if (!cfValue) {
            return kAXErrorIllegalArgument;
        }
        return callNamed(element, attribute, [&](AXUIElementRef ref, CFStringRef name) {
            return AXUIElementSetAttributeValue(ref, name, cfValue.get());
        });
    }

    std::int32_t elementAtPosition(const Element& application, float x, float y,
                                   Element& element) override {
        return callOn(application, [&](AXUIElementRef ref) {
            AXUIElementRef found = nullptr;
            const AXError status = AXUIElementCopyElementAtPosition(ref, x, y, &found);
            auto owned = CFRef<AXUIElementRef>::adopt(found);
            if (status == kAXErrorSuccess) {
                element = makeElement(std::move(owned));
            }
            return status;
        });
    }

    std::int32_t pid(const Element& element, int& pid) override {
        return callOn(element, [&](AXUIElementRef ref) {
            pid_t value = 0;
            const AXError status = AXUIElementGetPid(ref, &value);
            pid = static_cast<int>(value);
            return status;
        });
    }

    std::int32_t performAction(const Element& element, std::string_view action) override {
        return callNamed(element, action, &AXUIElementPerformAction);
    }

    std::int32_t setMessagingTimeout(const Element& element, float seconds) override {
        return callOn(element, [seconds](AXUIElementRef ref) {
            return AXUIElementSetMessagingTimeout(ref, seconds);
        });
    }

    std::unique_ptr<AccessibilityObserver> createObserver(int pid, ObserverCallback callback,
                                                          std::int32_t& status) override {
        return MacAccessibilityObserver::create(pid, std::move(callback), status);
    }
};

}  // namespace

std::unique_ptr<Accessibility> makeMacAccessibility() {
    return std::make_unique<MacAccessibility>();
}

}  // namespace quorvane
