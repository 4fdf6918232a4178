#include "mac/MacWindowList.hpp"

#include "mac/MacFrameworks.h"

namespace quorvane {

std::vector<int> MacWindowList::onScreenWindowOwners() {
    @autoreleasepool {
        std::vector<int> owners;
        // A Copy, handed to ARC. NULL outside a GUI session, which ARC turns into nil.
        NSArray* windows = (__bridge_transfer NSArray*)CGWindowListCopyWindowInfo(
            kCGWindowListOptionOnScreenOnly | kCGWindowListExcludeDesktopElements, kCGNullWindowID);
        for (NSDictionary* info in windows) {
            // unconfirmed: check on a Mac first (-[NSNumber intValue] and -isKindOfClass: are not
            // in the fact sheet; the owner key holds a CFNumber of a 32-bit signed integer).
            id owner = info[(__bridge id)kCGWindowOwnerPID];
            if ([owner isKindOfClass:[NSNumber class]]) {
                NSNumber* number = owner;
                owners.push_back(number.intValue);
            }
        }
        return owners;
    }
}

}  // namespace quorvane
