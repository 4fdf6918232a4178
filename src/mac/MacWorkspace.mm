#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacWorkspace.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

bool MacWorkspace::openURL(const std::string& url) {
    @autoreleasepool {
        NSString* text = makeNSString(url);
        if (!text) {
            return false;
        }
        // unconfirmed: check on a Mac first (+[NSURL URLWithString:] and -[NSWorkspace
        // openURL:] are not in the fact sheet). URLWithString: gives nil for malformed text.
        NSURL* target = [NSURL URLWithString:text];
        if (!target) {
            return false;
        }
        return [[NSWorkspace sharedWorkspace] openURL:target];
    }
}

}  // namespace quorvane
