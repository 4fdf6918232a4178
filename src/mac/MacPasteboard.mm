#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

NSData* toNSData(const std::vector<std::uint8_t>& bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

std::vector<std::uint8_t> toBytes(NSData* data) {
    const auto* start = static_cast<const std::uint8_t*>(data.bytes);
    return start ? std::vector<std::uint8_t>(start, start + data.length)
                 : std::vector<std::uint8_t>();
}

NSPasteboard* general() { return NSPasteboard.generalPasteboard; }

// The general pasteboard through NSPasteboard.
class MacPasteboard final : public Pasteboard {
public:
    std::int64_t changeCount() override { return static_cast<std::int64_t>(general().changeCount); }

    std::vector<std::string> types() override {
        @autoreleasepool {
            return utf8Strings(general().types);
        }
    }

    std::vector<std::vector<std::string>> itemTypes() override {
        @autoreleasepool {
            std::vector<std::vector<std::string>> result;
            // unconfirmed: check on a Mac first (NSPasteboardItem's `types` property is not in the
            // fact sheet).
            for (NSPasteboardItem* item in general().pasteboardItems) {
                result.push_back(utf8Strings(item.types));
            }
            return result;
        }
    }

    std::optional<std::string> string(const std::string& type) override {
        @autoreleasepool {
            NSString* string = [general() stringForType:text(type)];
            return string ? std::optional(utf8String(string)) : std::nullopt;
        }
    }

    std::optional<std::vector<std::uint8_t>> data(const std::string& type) override {
        @autoreleasepool {
            NSData* data = [general() dataForType:text(type)];
            return data ? std::optional(toBytes(data)) : std::nullopt;
        }
    }

    std::vector<std::string> filePaths() override {
        @autoreleasepool {
            return pathsOf([general() readObjectsForClasses:@[ [NSURL class] ]
                                                    options:@{
                                                        NSPasteboardURLReadingFileURLsOnlyKey : @YES
                                                    }]);
        }
    }

    std::vector<PasteboardItem> items() override {
        @autoreleasepool {
            std::vector<PasteboardItem> result;
            // unconfirmed: check on a Mac first (-[NSPasteboardItem dataForType:] is not in the
            // fact sheet; a type whose data cannot be produced answers nil and is left out).
            for (NSPasteboardItem* item in general().pasteboardItems) {
                PasteboardItem copy;
                for (NSPasteboardType type in item.types) {
                    if (NSData* data = [item dataForType:type]) {
                        copy.representations.push_back({utf8String(type), toBytes(data)});
                    }
                }
                result.push_back(std::move(copy));
            }
            return result;
        }
    }

    std::int64_t clearContents() override {
        return static_cast<std::int64_t>([general() clearContents]);
    }

    bool setString(const std::string& string, const std::string& type) override {
        @autoreleasepool {
            return [general() setString:text(string) forType:text(type)];
        }
    }

    bool setData(const std::vector<std::uint8_t>& bytes, const std::string& type) override {
        @autoreleasepool {
            return [general() setData:toNSData(bytes) forType:text(type)];
        }
    }

    bool writeFilePaths(const std::vector<std::string>& paths) override {
        @autoreleasepool {
            NSMutableArray* urls = [NSMutableArray array];
            for (const std::string& path : paths) {
                // unconfirmed: check on a Mac first (+fileURLWithPath: is not in the fact sheet).
                [urls addObject:[NSURL fileURLWithPath:text(path)]];
            }
            return [general() writeObjects:urls];
        }
    }

    bool writeItems(const std::vector<PasteboardItem>& items) override {
        @autoreleasepool {
            NSMutableArray* objects = [NSMutableArray array];
            for (const PasteboardItem& item : items) {
                // unconfirmed: check on a Mac first (NSPasteboardItem's -init and -setData:forType:
                // are not in the fact sheet).
                NSPasteboardItem* written = [[NSPasteboardItem alloc] init];
                for (const auto& representation : item.representations) {
                    [written setData:toNSData(representation.bytes)
                             forType:text(representation.type)];
                }
                [objects addObject:written];
            }
            return [general() writeObjects:objects];
        }
    }
};

}  // namespace

std::unique_ptr<Pasteboard> makeMacPasteboard() { return std::make_unique<MacPasteboard>(); }

}  // namespace quorvane
