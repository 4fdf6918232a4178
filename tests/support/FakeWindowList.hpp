#pragma once

#include "platform/WindowList.hpp"

namespace quorvane {

struct FakeWindowList : WindowList {
    std::vector<int> owners;
    std::vector<int> onScreenWindowOwners() override { return owners; }
};

}  // namespace quorvane
