#pragma once

#include "platform/WindowList.hpp"

namespace quorvane {

// The window server's on-screen windows through CGWindowListCopyWindowInfo.
class MacWindowList final : public WindowList {
public:
    std::vector<int> onScreenWindowOwners() override;
};

}  // namespace quorvane
