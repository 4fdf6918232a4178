#pragma once

#include <cstdint>
#include <vector>

#include "platform/WindowInfo.hpp"

namespace quorvane {

// The window server's list of windows.
class WindowList {
public:
    virtual ~WindowList() = default;

    // The owner process ids of the windows on screen, desktop elements left out; one entry per
    // window, front to back.
    virtual std::vector<int> onScreenWindowOwners() = 0;
    // The windows on screen, desktop elements left out, front to back.
    virtual std::vector<WindowInfo> onScreenWindows() { return {}; }
    // Keeps another application's window above all others, or lets it go. There is no public
    // interface for this, so it is this one call, which answers false when the system refuses.
    virtual bool keepAbove(std::uint32_t /*windowNumber*/, bool /*on*/) { return false; }
};

}  // namespace quorvane
