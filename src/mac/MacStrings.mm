#include "mac/MacStrings.hpp"

#include <cstddef>
#include <utility>

namespace quorvane {

CFRef<CFStringRef> makeCFString(std::string_view utf8) {
    // A default-constructed view may have a null data pointer; CF gets a real empty string.
    const char* bytes = utf8.empty() ? "" : utf8.data();
    // unconfirmed: check on a Mac first (CFStringCreateWithBytes is not in the fact sheet; it
    // returns NULL for bytes that are not valid in the encoding).
    return CFRef<CFStringRef>::adopt(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(bytes),
                                static_cast<CFIndex>(utf8.size()), kCFStringEncodingUTF8, false));
}

NSString* makeNSString(std::string_view utf8) {
    // CFBridgingRelease hands the +1 string to ARC, and gives nil for NULL.
    return CFBridgingRelease(makeCFString(utf8).detach());
}

NSString* text(std::string_view utf8) {
    NSString* string = makeNSString(utf8);
    return string ? string : @"";
}

std::string utf8String(CFStringRef string) {
    if (!string) {
        return {};
    }
    const CFRange whole = CFRangeMake(0, CFStringGetLength(string));
    // unconfirmed: check on a Mac first (CFStringGetBytes is not in the fact sheet). A NULL
    // buffer only measures; a non-zero loss byte replaces what the encoding cannot express
    // instead of stopping there.
    const UInt8 lossByte = '?';
    CFIndex byteCount = 0;
    CFStringGetBytes(string, whole, kCFStringEncodingUTF8, lossByte, false, nullptr, 0, &byteCount);
    std::string result(static_cast<std::size_t>(byteCount), '\0');
    CFIndex written = 0;
    CFStringGetBytes(string, whole, kCFStringEncodingUTF8, lossByte, false,
                     reinterpret_cast<UInt8*>(result.data()), byteCount, &written);
    result.resize(static_cast<std::size_t>(written));
    return result;
}

std::string utf8String(NSString* string) { return utf8String((__bridge CFStringRef)string); }

std::optional<std::string> utf8StringIfText(id object) {
    if (![object isKindOfClass:[NSString class]]) {
        return std::nullopt;
    }
    return utf8String(static_cast<NSString*>(object));
}

std::vector<std::string> utf8Strings(NSArray* array) {
    std::vector<std::string> strings;
    for (id element in array) {
        if (auto string = utf8StringIfText(element)) {
            strings.push_back(std::move(*string));
        }
    }
    return strings;
}

std::vector<std::string> pathsOf(NSArray<NSURL*>* urls) {
    std::vector<std::string> result;
    for (NSURL* url in urls) {
        // unconfirmed: check on a Mac first (NSURL's `path` is not in the fact sheet).
        if (NSString* path = url.path) {
            result.push_back(utf8String(path));
        }
    }
    return result;
}

std::string errorText(NSError* error, std::string_view fallback) {
    // unconfirmed: check on a Mac first (NSError's localizedDescription is not in the fact
    // sheet).
    return error ? utf8String(error.localizedDescription) : std::string(fallback);
}

}  // namespace quorvane
