#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacPasteboard.hpp"

#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

NSString* toNSString(const std::string& text) {
    // unconfirmed: check on a Mac first (-initWithBytes:length:encoding: is not in the fact
    // sheet). Invalid UTF-8 answers nil; an empty string stands in.
    NSString* string = [[NSString alloc] initWithBytes:text.data()
                                                length:text.size()
                                              encoding:NSUTF8StringEncoding];
    return string ? string : @"";
}

std::string toString(NSString* string) {
    // unconfirmed: check on a Mac first (-UTF8String is not in the fact sheet).
    const char* utf8 = string.UTF8String;
    return utf8 ? std::string(utf8) : std::string();
}

NSData* toNSData(const std::vector<std::uint8_t>& bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

std::vector<std::uint8_t> toBytes(NSData* data) {
    const auto* start = static_cast<const std::uint8_t*>(data.bytes);
    return start ? std::vector<std::uint8_t>(start, start + data.length)
                 : std::vector<std::uint8_t>();
}

std::vector<std::string> toStrings(NSArray<NSString*>* strings) {
    std::vector<std::string> result;
    for (NSString* string in strings) {
        result.push_back(toString(string));
    }
    return result;
}

NSPasteboard* general() { return NSPasteboard.generalPasteboard; }

}  // namespace

std::int64_t MacPasteboard::changeCount() {
    return static_cast<std::int64_t>(general().changeCount);
}

std::vector<std::string> MacPasteboard::types() {
    @autoreleasepool {
        return toStrings(general().types);
    }
}

std::vector<std::vector<std::string>> MacPasteboard::itemTypes() {
    @autoreleasepool {
        std::vector<std::vector<std::string>> result;
        // unconfirmed: check on a Mac first (NSPasteboardItem's `types` property is not in the
        // fact sheet).
        for (NSPasteboardItem* item in general().pasteboardItems) {
            result.push_back(toStrings(item.types));
        }
        return result;
    }
}

std::optional<std::string> MacPasteboard::string(const std::string& type) {
    @autoreleasepool {
        NSString* string = [general() stringForType:toNSString(type)];
        return string ? std::optional(toString(string)) : std::nullopt;
    }
}

std::optional<std::vector<std::uint8_t>> MacPasteboard::data(const std::string& type) {
    @autoreleasepool {
        NSData* data = [general() dataForType:toNSString(type)];
        return data ? std::optional(toBytes(data)) : std::nullopt;
    }
}

std::vector<std::string> MacPasteboard::filePaths() {
    @autoreleasepool {
        std::vector<std::string> paths;
        NSArray* urls = [general() readObjectsForClasses:@[ [NSURL class] ]
                                                 options:@{
                                                     NSPasteboardURLReadingFileURLsOnlyKey : @YES
                                                 }];
        for (NSURL* url in urls) {
            // unconfirmed: check on a Mac first (NSURL's `path` is not in the fact sheet).
            if (NSString* path = url.path) {
                paths.push_back(toString(path));
            }
        }
        return paths;
    }
}

std::vector<PasteboardItem> MacPasteboard::items() {
    @autoreleasepool {
        std::vector<PasteboardItem> result;
        // unconfirmed: check on a Mac first (-[NSPasteboardItem dataForType:] is not in the
        // fact sheet; a type whose data cannot be produced answers nil and is left out).
        for (NSPasteboardItem* item in general().pasteboardItems) {
            PasteboardItem copy;
            for (NSPasteboardType type in item.types) {
                if (NSData* data = [item dataForType:type]) {
                    copy.representations.push_back({toString(type), toBytes(data)});
                }
            }
            result.push_back(std::move(copy));
        }
        return result;
    }
}

std::int64_t MacPasteboard::clearContents() {
    return static_cast<std::int64_t>([general() clearContents]);
}

bool MacPasteboard::setString(const std::string& string, const std::string& type) {
    @autoreleasepool {
        return [general() setString:toNSString(string) forType:toNSString(type)];
    }
}

bool MacPasteboard::setData(const std::vector<std::uint8_t>& bytes, const std::string& type) {
    @autoreleasepool {
        return [general() setData:toNSData(bytes) forType:toNSString(type)];
    }
}

bool MacPasteboard::writeFilePaths(const std::vector<std::string>& paths) {
    @autoreleasepool {
        NSMutableArray* urls = [NSMutableArray array];
        for (const std::string& path : paths) {
            // unconfirmed: check on a Mac first (+fileURLWithPath: is not in the fact sheet).
            [urls addObject:[NSURL fileURLWithPath:toNSString(path)]];
        }
        return [general() writeObjects:urls];
    }
}

bool MacPasteboard::writeItems(const std::vector<PasteboardItem>& items) {
    @autoreleasepool {
        NSMutableArray* objects = [NSMutableArray array];
        for (const PasteboardItem& item : items) {
            // unconfirmed: check on a Mac first (NSPasteboardItem's -init and -setData:forType:
            // are not in the fact sheet).
            NSPasteboardItem* written = [[NSPasteboardItem alloc] init];
            for (const auto& representation : item.representations) {
                [written setData:toNSData(representation.bytes)
                         forType:toNSString(representation.type)];
            }
            [objects addObject:written];
        }
        return [general() writeObjects:objects];
    }
}

}  // namespace quorvane
