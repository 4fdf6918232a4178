#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// Thumbnails through ImageIO.
class MacThumbnails final : public Thumbnails {
public:
    std::optional<Thumbnail> make(const std::string& path, int maxPixelSize) override {
        @autoreleasepool {
            // unconfirmed: check on a Mac first (+fileURLWithPath: is not in the fact sheet).
            NSURL* url = [NSURL fileURLWithPath:text(path)];
            const auto source = CFRef<CGImageSourceRef>::adopt(
                CGImageSourceCreateWithURL((__bridge CFURLRef)url, nullptr));
            if (!source) {
                return std::nullopt;
            }
            NSDictionary* options = @{
                (__bridge NSString*)kCGImageSourceCreateThumbnailFromImageAlways : @YES,
                (__bridge NSString*)kCGImageSourceThumbnailMaxPixelSize : @(maxPixelSize),
            };
            CGImageRef image = CGImageSourceCreateThumbnailAtIndex(
                source.get(), 0, (__bridge CFDictionaryRef)options);
            if (!image) {
                return std::nullopt;
            }
            Thumbnail thumbnail;
            // unconfirmed: check on a Mac first (CGImageGetWidth and CGImageGetHeight are not in
            // the fact sheet).
            thumbnail.width = static_cast<int>(CGImageGetWidth(image));
            thumbnail.height = static_cast<int>(CGImageGetHeight(image));
            // The Create reference is handed to the shared pointer, which releases it once.
            thumbnail.image = std::shared_ptr<const void>(
                image, [](const void* held) { CFRelease(static_cast<CFTypeRef>(held)); });
            return thumbnail;
        }
    }
};

}  // namespace

std::unique_ptr<Thumbnails> makeMacThumbnails() { return std::make_unique<MacThumbnails>(); }

}  // namespace quorvane
