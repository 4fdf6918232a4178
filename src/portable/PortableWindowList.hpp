#pragma once

#include "platform/WindowList.hpp"

namespace quorvane {

// No window server outside macOS.
class PortableWindowList : public WindowList {
public:
    std::vector<int> onScreenWindowOwners() override { return {}; }
};

}  // namespace quorvane
