#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacPropertyList.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "mac/MacStrings.hpp"

// unconfirmed: check on a Mac first. The CFGetTypeID / CFBoolean / CFNumber / CFData / CFDate /
// CFArray / CFDictionary calls below are not in the fact sheet, and were written from Apple's
// Core Foundation reference.

namespace quorvane {

std::optional<PreferenceValue> fromPropertyList(CFTypeRef object) {
    const CFTypeID type = CFGetTypeID(object);
    // Booleans are tested first and kept as their own kind, so a stored Boolean never reads
    // back as the number 0 or 1.
    if (type == CFBooleanGetTypeID()) {
        const bool value = CFBooleanGetValue(static_cast<CFBooleanRef>(object));
        return PreferenceValue(value);
    }
    if (type == CFNumberGetTypeID()) {
        const auto number = static_cast<CFNumberRef>(object);
        if (!CFNumberIsFloatType(number)) {
            std::int64_t integer = 0;
            // An unsigned value beyond the signed 64-bit range does not fit; it is read as a
            // real below rather than wrapped.
            if (CFNumberGetValue(number, kCFNumberSInt64Type, &integer)) {
                return PreferenceValue(integer);
            }
        }
        double real = 0;
        CFNumberGetValue(number, kCFNumberDoubleType, &real);
        return PreferenceValue(real);
    }
    if (type == CFStringGetTypeID()) {
        return PreferenceValue(utf8String(static_cast<CFStringRef>(object)));
    }
    if (type == CFDataGetTypeID()) {
        const auto data = static_cast<CFDataRef>(object);
        const UInt8* bytes = CFDataGetBytePtr(data);
        const auto length = static_cast<std::size_t>(CFDataGetLength(data));
        return PreferenceValue(bytes ? PreferenceValue::Data(bytes, bytes + length)
                                     : PreferenceValue::Data());
    }
    if (type == CFDateGetTypeID()) {
        // Both sides count seconds from 2001-01-01 00:00:00 UTC.
        return PreferenceValue(
            PreferenceValue::Date{CFDateGetAbsoluteTime(static_cast<CFDateRef>(object))});
    }
    if (type == CFArrayGetTypeID()) {
        const auto array = static_cast<CFArrayRef>(object);
        const CFIndex count = CFArrayGetCount(array);
        PreferenceValue::Array result;
        result.reserve(static_cast<std::size_t>(count));
        for (CFIndex index = 0; index < count; ++index) {
            if (auto element = fromPropertyList(CFArrayGetValueAtIndex(array, index))) {
                result.push_back(std::move(*element));
            }
        }
        return PreferenceValue(std::move(result));
    }
    if (type == CFDictionaryGetTypeID()) {
        const auto dictionary = static_cast<CFDictionaryRef>(object);
        const auto count = static_cast<std::size_t>(CFDictionaryGetCount(dictionary));
        std::vector<const void*> keys(count);
        std::vector<const void*> values(count);
        CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
        PreferenceValue::Dictionary result;
        for (std::size_t index = 0; index < count; ++index) {
            // A property list may key a dictionary by anything; Quorvane's values are keyed
            // by text only, so other entries are left out.
            if (CFGetTypeID(keys[index]) != CFStringGetTypeID()) {
                continue;
            }
            if (auto value = fromPropertyList(values[index])) {
                result.insert_or_assign(utf8String(static_cast<CFStringRef>(keys[index])),
                                        std::move(*value));
            }
        }
        return PreferenceValue(std::move(result));
    }
    return std::nullopt;
}

CFRef<CFPropertyListRef> toPropertyList(const PreferenceValue& value) {
    using PropertyList = CFRef<CFPropertyListRef>;
    switch (value.kind()) {
        case PreferenceKind::boolean:
            return PropertyList::retain(*value.boolean() ? kCFBooleanTrue : kCFBooleanFalse);
        case PreferenceKind::integer: {
            const std::int64_t integer = *value.integer();
            return PropertyList::adopt(
                CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &integer));
        }
        case PreferenceKind::real: {
            const double real = *value.real();
            return PropertyList::adopt(
                CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &real));
        }
        case PreferenceKind::string:
            return PropertyList::adopt(makeCFString(*value.string()).detach());
        case PreferenceKind::data: {
            const PreferenceValue::Data& data = *value.data();
            return PropertyList::adopt(
                CFDataCreate(kCFAllocatorDefault, data.data(), static_cast<CFIndex>(data.size())));
        }
        case PreferenceKind::date:
            return PropertyList::adopt(
                CFDateCreate(kCFAllocatorDefault, value.date()->secondsSinceReferenceDate));
        case PreferenceKind::array: {
            auto array = CFRef<CFMutableArrayRef>::adopt(
                CFArrayCreateMutable(kCFAllocatorDefault, 0, &kCFTypeArrayCallBacks));
            if (!array) {
                return {};
            }
            for (const PreferenceValue& element : *value.array()) {
                if (const PropertyList item = toPropertyList(element)) {
                    // The array's callbacks retain the element.
                    CFArrayAppendValue(array.get(), item.get());
                }
            }
            return PropertyList::adopt(array.detach());
        }
        case PreferenceKind::dictionary: {
            auto dictionary = CFRef<CFMutableDictionaryRef>::adopt(
                CFDictionaryCreateMutable(kCFAllocatorDefault, 0, &kCFTypeDictionaryKeyCallBacks,
                                          &kCFTypeDictionaryValueCallBacks));
            if (!dictionary) {
                return {};
            }
            for (const auto& [key, element] : *value.dictionary()) {
                const CFRef<CFStringRef> cfKey = makeCFString(key);
                const PropertyList item = toPropertyList(element);
                if (cfKey && item) {
                    // The dictionary's callbacks retain the key and the value.
                    CFDictionarySetValue(dictionary.get(), cfKey.get(), item.get());
                }
            }
            return PropertyList::adopt(dictionary.detach());
        }
    }
    return {};
}

}  // namespace quorvane
