#pragma once

#include <utility>

#include "platform/WindowList.hpp"

namespace quorvane {

struct FakeWindowList : WindowList {
    std::vector<int> owners;
    std::vector<int> onScreenWindowOwners() override { return owners; }
    std::vector<WindowInfo> windows;
    std::vector<WindowInfo> onScreenWindows() override { return windows; }
    // Whether the system lets a window be kept on top, and the calls made.
    bool allowsKeepAbove = false;
    std::vector<std::pair<std::uint32_t, bool>> keepAboveCalls;
    bool keepAbove(std::uint32_t windowNumber, bool on) override {
        keepAboveCalls.emplace_back(windowNumber, on);
        return allowsKeepAbove;
    }
};

}  // namespace quorvane
