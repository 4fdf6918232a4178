#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// Large enough for the biggest representation Finder shows; setIcon scales it down for the rest.
constexpr CGFloat kIconSize = 512;

NSImage* drawFolder(const FolderArtwork& artwork) {
    // unconfirmed: check on a Mac first (-iconForContentType:, UTTypeFolder and
    // +imageWithSize:flipped:drawingHandler: are not in the fact sheet).
    NSImage* folder = [[NSWorkspace sharedWorkspace] iconForContentType:UTTypeFolder];
    const FolderArtwork shape = artwork;
    return [NSImage imageWithSize:NSMakeSize(kIconSize, kIconSize)
                          flipped:NO
                   drawingHandler:^BOOL(NSRect rect) {
                     [folder drawInRect:rect];
                     if (shape.tint) {
                         // Source-atop paints only where the folder is, keeping its transparency.
                         [[NSColor colorWithSRGBRed:shape.tint->red
                                              green:shape.tint->green
                                               blue:shape.tint->blue
                                              alpha:shape.tintStrength] set];
                         NSRectFillUsingOperation(rect, NSCompositingOperationSourceAtop);
                     }
                     if (!shape.badgeText.empty()) {
                         NSDictionary* attributes = @{
                             NSFontAttributeName :
                                 [NSFont systemFontOfSize:rect.size.height * shape.badgeScale],
                         };
                         NSString* badge = text(shape.badgeText);
                         const NSSize size = [badge sizeWithAttributes:attributes];
                         [badge drawAtPoint:NSMakePoint(NSMidX(rect) - size.width / 2,
                                                        rect.size.height * shape.badgeCenterY -
                                                            size.height / 2)
                             withAttributes:attributes];
                     }
                     return YES;
                   }];
}

// Custom icons through NSWorkspace; folder artwork is drawn over the system's folder icon.
class MacFileIcons final : public FileIcons {
public:
    bool hasCustomIcon(const std::string& path) override {
        @autoreleasepool {
            // A folder's custom icon lives in a hidden file named "Icon" and a carriage return.
            // unconfirmed: check on a Mac first (files keep theirs in the resource fork instead,
            // which this does not look at; the tool only changes folders).
            NSString* iconFile = [text(path) stringByAppendingPathComponent:@"Icon\r"];
            return [[NSFileManager defaultManager] fileExistsAtPath:iconFile];
        }
    }

    bool setIcon(const std::string& path, const FolderArtwork* artwork) override {
        @autoreleasepool {
            NSImage* image = artwork != nullptr ? drawFolder(*artwork) : nil;
            // unconfirmed: check on a Mac first (-setIcon:forFile:options: is not in the fact
            // sheet; nil removes the custom icon, by Apple's reference).
            return [[NSWorkspace sharedWorkspace] setIcon:image forFile:text(path) options:0];
        }
    }
};

}  // namespace

std::unique_ptr<FileIcons> makeMacFileIcons() { return std::make_unique<MacFileIcons>(); }

}  // namespace quorvane
