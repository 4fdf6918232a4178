#pragma once

#include "platform/PermissionProbe.hpp"

namespace quorvane {

// Outside macOS there is nothing to grant: the permissions are simply not there, so the tools
// that need them never start in the command line.
class PortablePermissionProbe : public PermissionProbe {
public:
    bool isAccessibilityTrusted() override { return false; }
    bool promptForAccessibility() override { return false; }
    bool preflightScreenCapture() override { return false; }
    bool requestScreenCapture() override { return false; }
};

}  // namespace quorvane
