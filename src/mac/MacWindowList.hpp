#pragma once

#include "platform/WindowList.hpp"

namespace quorvane {

// The window server's on-screen windows through CGWindowListCopyWindowInfo.
class MacWindowList final : public WindowList {
public:
    std::vector<int> onScreenWindowOwners() override;
    std::vector<WindowInfo> onScreenWindows() override;
    bool keepAbove(std::uint32_t windowNumber, bool on) override;
};

}  // namespace quorvane
