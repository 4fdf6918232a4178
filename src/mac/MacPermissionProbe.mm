#include "mac/MacPermissionProbe.hpp"

#include "mac/MacFrameworks.h"

namespace quorvane {

bool MacPermissionProbe::isAccessibilityTrusted() { return AXIsProcessTrusted(); }

bool MacPermissionProbe::promptForAccessibility() {
    @autoreleasepool {
        // The prompt key is a Get-rule global: bridged without a transfer, never released.
        NSDictionary* options = @{(__bridge id)kAXTrustedCheckOptionPrompt : @YES};
        // The prompt appears asynchronously; the answer is the trust as it stands now.
        return AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
    }
}

bool MacPermissionProbe::preflightScreenCapture() { return CGPreflightScreenCaptureAccess(); }

bool MacPermissionProbe::requestScreenCapture() {
    // After an earlier denial this returns false at once, without asking again.
    return CGRequestScreenCaptureAccess();
}

}  // namespace quorvane
