#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

// The Accessibility and screen-recording checks of the running process.
class MacPermissionProbe final : public PermissionProbe {
public:
    bool isAccessibilityTrusted() override { return AXIsProcessTrusted(); }

    bool promptForAccessibility() override {
        @autoreleasepool {
            // The prompt key is a Get-rule global: bridged without a transfer, never released.
            NSDictionary* options = @{(__bridge id)kAXTrustedCheckOptionPrompt : @YES};
            // The prompt appears asynchronously; the answer is the trust as it stands now.
            return AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
        }
    }

    bool preflightScreenCapture() override { return CGPreflightScreenCaptureAccess(); }

    bool requestScreenCapture() override {
        // After an earlier denial this returns false at once, without asking again.
        return CGRequestScreenCaptureAccess();
    }
};

}  // namespace

std::unique_ptr<PermissionProbe> makeMacPermissionProbe() {
    return std::make_unique<MacPermissionProbe>();
}

}  // namespace quorvane
