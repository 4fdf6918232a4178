#pragma once

#include "platform/PermissionProbe.hpp"

namespace quorvane {

// The Accessibility and screen-recording checks of the running process.
class MacPermissionProbe final : public PermissionProbe {
public:
    bool isAccessibilityTrusted() override;
    bool promptForAccessibility() override;
    bool preflightScreenCapture() override;
    bool requestScreenCapture() override;
};

}  // namespace quorvane
