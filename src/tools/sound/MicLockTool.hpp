#pragma once

#include "tools/sound/DeviceLockTool.hpp"

namespace quorvane {

// Keeps the microphone the user chose as the one the Mac listens to.
class MicLockTool : public DeviceLockTool {
public:
    MicLockTool(const ToolDescriptor& descriptor, const Platform& platform)
        : DeviceLockTool(descriptor, platform, Role::input) {}
};

}  // namespace quorvane
