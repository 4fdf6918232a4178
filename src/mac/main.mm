#include "mac/AppDelegate.hpp"
#include "mac/MacFrameworks.h"

int main() {
    @autoreleasepool {
        // unconfirmed: check on a Mac first (+sharedApplication and -run are not in the fact
        // sheet).
        NSApplication* application = [NSApplication sharedApplication];
        quorvane::installAppDelegate();
        // Never returns: quitting ends the process through exit().
        [application run];
    }
    return 0;
}
