#include "mac/MacPropertyList.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "mac/MacStrings.hpp"
#include "platform/PropertyListObjects.hpp"

// unconfirmed: check on a Mac first. The CFGetTypeID / CFBoolean / CFNumber / CFData / CFDate /
// CFArray / CFDictionary calls below are not in the fact sheet, and were written from Apple's
// Core Foundation reference.

namespace quorvane {

namespace {

// Core Foundation's objects, call for call; what they become is decided in readPropertyList
// and makePropertyList.
class CFPropertyListObjects final : public PropertyListObjects {
public:
    Type type(Object object) const override {
        const std::pair<CFTypeID, Type> types[] = {
            {CFBooleanGetTypeID(), Type::boolean},
            {CFNumberGetTypeID(), Type::number},
            {CFStringGetTypeID(), Type::string},
            {CFDataGetTypeID(), Type::data},
            {CFDateGetTypeID(), Type::date},
            {CFArrayGetTypeID(), Type::array},
            {CFDictionaryGetTypeID(), Type::dictionary},
        };
        return kindOf(object, types, Type::other);
    }
    bool boolean(Object object) const override {
        return CFBooleanGetValue(static_cast<CFBooleanRef>(object));
    }
    bool isFloat(Object object) const override {
        return CFNumberIsFloatType(static_cast<CFNumberRef>(object));
    }
    std::optional<std::int64_t> integer(Object object) const override {
        std::int64_t value = 0;
        // False when the conversion loses anything, such as an unsigned value past 2^63.
        if (!CFNumberGetValue(static_cast<CFNumberRef>(object), kCFNumberSInt64Type, &value)) {
            return std::nullopt;
        }
        return value;
    }
    double real(Object object) const override {
        double value = 0;
        CFNumberGetValue(static_cast<CFNumberRef>(object), kCFNumberDoubleType, &value);
        return value;
    }
    std::string string(Object object) const override {
        return utf8String(static_cast<CFStringRef>(object));
    }
    PreferenceValue::Data data(Object object) const override {
        const auto data = static_cast<CFDataRef>(object);
        const UInt8* bytes = CFDataGetBytePtr(data);
        const auto length = static_cast<std::size_t>(CFDataGetLength(data));
        return bytes ? PreferenceValue::Data(bytes, bytes + length) : PreferenceValue::Data();
    }
    double date(Object object) const override {
        // Both sides count seconds from 2001-01-01 00:00:00 UTC.
        return CFDateGetAbsoluteTime(static_cast<CFDateRef>(object));
    }
    std::vector<Object> elements(Object array) const override {
        return arrayValues(static_cast<CFArrayRef>(array));
    }
    std::vector<std::pair<Object, Object>> entries(Object dictionary) const override {
        const auto cfDictionary = static_cast<CFDictionaryRef>(dictionary);
        const auto count = static_cast<std::size_t>(CFDictionaryGetCount(cfDictionary));
        std::vector<const void*> keys(count);
        std::vector<const void*> values(count);
        CFDictionaryGetKeysAndValues(cfDictionary, keys.data(), values.data());
        std::vector<std::pair<Object, Object>> result;
        for (std::size_t index = 0; index < count; ++index) {
            result.emplace_back(keys[index], values[index]);
        }
        return result;
    }

    Owned makeBoolean(bool value) override {
        return own(CFRetain(value ? kCFBooleanTrue : kCFBooleanFalse));
    }
    Owned makeInteger(std::int64_t value) override {
        return own(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &value));
    }
    Owned makeReal(double value) override {
        return own(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &value));
    }
    Owned makeString(const std::string& value) override {
        return own(makeCFString(value).detach());
    }
    Owned makeData(const PreferenceValue::Data& value) override {
        return own(
            CFDataCreate(kCFAllocatorDefault, value.data(), static_cast<CFIndex>(value.size())));
    }
    Owned makeDate(double secondsSinceReferenceDate) override {
        return own(CFDateCreate(kCFAllocatorDefault, secondsSinceReferenceDate));
    }
    Owned makeArray() override {
        return own(CFArrayCreateMutable(kCFAllocatorDefault, 0, &kCFTypeArrayCallBacks));
    }
    Owned makeDictionary() override {
        return own(CFDictionaryCreateMutable(kCFAllocatorDefault, 0, &kCFTypeDictionaryKeyCallBacks,
                                             &kCFTypeDictionaryValueCallBacks));
    }
    // The containers were made mutable above, with callbacks that retain what goes in.
    void append(Object array, Object element) override {
        CFArrayAppendValue(static_cast<CFMutableArrayRef>(const_cast<void*>(array)), element);
    }
    void setEntry(Object dictionary, Object key, Object value) override {
        CFDictionarySetValue(static_cast<CFMutableDictionaryRef>(const_cast<void*>(dictionary)),
                             key, value);
    }

private:
    // Takes over a +1 reference; NULL stays empty, since CFRelease(NULL) crashes.
    static Owned own(CFTypeRef created) {
        if (!created) {
            return nullptr;
        }
        return Owned(created, [](const void* held) { CFRelease(static_cast<CFTypeRef>(held)); });
    }
};

}  // namespace

std::vector<const void*> arrayValues(CFArrayRef array) {
    std::vector<const void*> values;
    for (CFIndex index = 0; index < CFArrayGetCount(array); ++index) {
        values.push_back(CFArrayGetValueAtIndex(array, index));
    }
    return values;
}

std::optional<PreferenceValue> fromPropertyList(CFTypeRef object) {
    return readPropertyList(CFPropertyListObjects(), object);
}

CFRef<CFPropertyListRef> toPropertyList(const PreferenceValue& value) {
    CFPropertyListObjects objects;
    // The holder adds its own reference before the made object's owner lets go.
    return CFRef<CFPropertyListRef>::retain(makePropertyList(objects, value).get());
}

}  // namespace quorvane
