#pragma once

#include "base/Rect.hpp"

namespace quorvane {

// One display, in screen coordinates: the origin at the bottom left of the main display.
struct Screen {
    Rect frame;
    // The frame less the menu bar and the Dock.
    Rect visibleFrame;
    friend bool operator==(const Screen&, const Screen&) = default;
};

}  // namespace quorvane
