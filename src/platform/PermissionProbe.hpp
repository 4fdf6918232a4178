#pragma once

namespace quorvane {

// The platform's privacy-permission tests and requests, one call each.
class PermissionProbe {
public:
    virtual ~PermissionProbe() = default;

    // AXIsProcessTrusted.
    virtual bool isAccessibilityTrusted() = 0;
    // AXIsProcessTrustedWithOptions with the prompt option: the system shows its own prompt.
    virtual bool promptForAccessibility() = 0;
    // CGPreflightScreenCaptureAccess.
    virtual bool preflightScreenCapture() = 0;
    // CGRequestScreenCaptureAccess.
    virtual bool requestScreenCapture() = 0;
};

}  // namespace quorvane
