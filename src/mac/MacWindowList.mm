#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

// A number of the info dictionary, or nothing when it is missing or not a number.
NSNumber* numberIn(NSDictionary* info, CFStringRef key) {
    id value = info[(__bridge id)key];
    return [value isKindOfClass:[NSNumber class]] ? value : nil;
}

// The window server's descriptions of the on-screen windows, front to back. A Copy, handed to
// ARC. NULL outside a GUI session, which ARC turns into nil.
NSArray* onScreenWindowInfo() {
    return (__bridge_transfer NSArray*)CGWindowListCopyWindowInfo(
        kCGWindowListOptionOnScreenOnly | kCGWindowListExcludeDesktopElements, kCGNullWindowID);
}

// The window server's on-screen windows through CGWindowListCopyWindowInfo.
class MacWindowList final : public WindowList {
public:
    std::vector<int> onScreenWindowOwners() override {
        @autoreleasepool {
            std::vector<int> owners;
            for (NSDictionary* info in onScreenWindowInfo()) {
                // unconfirmed: check on a Mac first (-[NSNumber intValue] and -isKindOfClass: are
                // not in the fact sheet; the owner key holds a CFNumber of a 32-bit signed
                // integer).
                if (NSNumber* owner = numberIn(info, kCGWindowOwnerPID)) {
                    owners.push_back(owner.intValue);
                }
            }
            return owners;
        }
    }

    std::vector<WindowInfo> onScreenWindows() override {
        @autoreleasepool {
            std::vector<WindowInfo> result;
            for (NSDictionary* info in onScreenWindowInfo()) {
                NSNumber* number = numberIn(info, kCGWindowNumber);
                NSNumber* owner = numberIn(info, kCGWindowOwnerPID);
                NSNumber* layer = numberIn(info, kCGWindowLayer);
                id bounds = info[(__bridge id)kCGWindowBounds];
                CGRect rect = CGRectZero;
                // kCGWindowBounds is a dictionary form of a CGRect in the global, top-left-origin
                // space, the same as accessibility frames.
                if (!number || !owner || !layer || ![bounds isKindOfClass:[NSDictionary class]] ||
                    !CGRectMakeWithDictionaryRepresentation((__bridge CFDictionaryRef)bounds,
                                                            &rect)) {
                    continue;
                }
                result.push_back(
                    {number.unsignedIntValue, owner.intValue, layer.intValue,
                     Rect(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height)});
            }
            return result;
        }
    }

    // No public interface sets the level of another process's window: a window's level belongs to
    // its owner (-[NSWindow setLevel:] acts on this app's windows only). Refusing here keeps the
    // pin tool honest until a supported way exists.
    bool keepAbove(std::uint32_t /*windowNumber*/, bool /*on*/) override { return false; }
};

}  // namespace

std::unique_ptr<WindowList> makeMacWindowList() { return std::make_unique<MacWindowList>(); }

}  // namespace quorvane
