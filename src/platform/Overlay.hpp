#pragma once

#include <cstdint>

#include "base/Rect.hpp"

namespace quorvane {

// A borderless, click-through, translucent black window over one display, placed in the
// window order right under another application's window, so everything further back looks
// dimmed. It never takes focus and shows on every Space.
class Overlay {
public:
    virtual ~Overlay() = default;

    // Screen coordinates (bottom-left origin).
    virtual void setFrame(const Rect& frame) = 0;
    // 0 (clear) to 1 (black).
    virtual void setAlpha(double alpha) = 0;
    // Puts the overlay directly below the window with this window-server number and shows it.
    virtual void orderBelow(std::uint32_t windowNumber) = 0;
    virtual void orderOut() = 0;
};

}  // namespace quorvane
