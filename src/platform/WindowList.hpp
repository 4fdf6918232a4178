#pragma once

#include <vector>

namespace quorvane {

// The window server's list of windows.
class WindowList {
public:
    virtual ~WindowList() = default;

    // The owner process ids of the windows on screen, desktop elements left out; one entry per
    // window, front to back.
    virtual std::vector<int> onScreenWindowOwners() = 0;
};

}  // namespace quorvane
