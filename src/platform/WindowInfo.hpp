#pragma once

#include <cstdint>

#include "base/Rect.hpp"

namespace quorvane {

// One window as the window server lists it.
struct WindowInfo {
    std::uint32_t number = 0;  // kCGWindowNumber
    int pid = 0;               // kCGWindowOwnerPID
    int layer = 0;             // kCGWindowLayer: 0 for ordinary application windows
    Rect bounds;               // kCGWindowBounds: top-left origin, like accessibility frames
    friend bool operator==(const WindowInfo&, const WindowInfo&) = default;
};

}  // namespace quorvane
