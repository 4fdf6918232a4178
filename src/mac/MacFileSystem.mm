#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"
#include "portable/PosixFileSystem.hpp"

namespace quorvane {

namespace {

// Listing and sizes are plain POSIX on macOS too; the home folder, the Trash and property
// lists (binary ones as well) come from Foundation and Core Foundation.
class MacFileSystem final : public PosixFileSystem {
public:
    std::string homeDirectory() override {
        @autoreleasepool {
            // unconfirmed: check on a Mac first (NSHomeDirectory is not in the fact sheet; written
            // from Apple's reference). Quorvane is not sandboxed, so this is the real home folder.
            return utf8String(NSHomeDirectory());
        }
    }

    std::string trashItem(const std::string& path) override {
        @autoreleasepool {
            NSString* text = makeNSString(path);
            if (!text) {
                return "the path is not UTF-8";
            }
            NSURL* url = [NSURL fileURLWithPath:text];
            NSError* error = nil;
            // unconfirmed: check on a Mac first (-[NSFileManager trashItemAtURL:resultingItemURL:
            // error:] is written from Apple's reference, macOS 10.8+). It moves the item into the
            // Trash of the item's own volume.
            if (![[NSFileManager defaultManager] trashItemAtURL:url
                                               resultingItemURL:nil
                                                          error:&error]) {
                return errorText(error, "the system refused");
            }
            return {};
        }
    }

protected:
    std::optional<PreferenceValue> parsePropertyList(const std::string& bytes,
                                                     std::string& error) override {
        const auto data = CFRef<CFDataRef>::adopt(
            CFDataCreate(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(bytes.data()),
                         static_cast<CFIndex>(bytes.size())));
        if (!data) {
            error = "out of memory";
            return std::nullopt;
        }
        // unconfirmed: check on a Mac first (CFPropertyListCreateWithData is written from Apple's
        // reference; it reads the XML and the binary forms and says why it failed).
        CFErrorRef failure = nullptr;
        const auto list = CFRef<CFPropertyListRef>::adopt(CFPropertyListCreateWithData(
            kCFAllocatorDefault, data.get(), kCFPropertyListImmutable, nullptr, &failure));
        if (!list) {
            const auto owned = CFRef<CFErrorRef>::adopt(failure);
            const auto description =
                CFRef<CFStringRef>::adopt(owned ? CFErrorCopyDescription(owned.get()) : nullptr);
            error = description ? utf8String(description.get()) : "damaged";
            return std::nullopt;
        }
        auto value = fromPropertyList(list.get());
        if (!value) {
            error = "holds no property list";
        }
        return value;
    }
};

}  // namespace

std::unique_ptr<FileSystem> makeMacFileSystem() { return std::make_unique<MacFileSystem>(); }

}  // namespace quorvane
