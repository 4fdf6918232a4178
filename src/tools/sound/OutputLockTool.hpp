#pragma once

#include "tools/sound/DeviceLockTool.hpp"

namespace quorvane {

// Keeps sound on the output device the user chose.
class OutputLockTool : public DeviceLockTool {
public:
    OutputLockTool(const ToolDescriptor& descriptor, const Platform& platform)
        : DeviceLockTool(descriptor, platform, Role::output) {}
};

}  // namespace quorvane
