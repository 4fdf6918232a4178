#pragma once

#include <optional>

#include "base/Rect.hpp"
#include "tools/windows/DisplayLayout.hpp"
#include "tools/windows/SnapAction.hpp"

namespace quorvane {

// What performing a snap action on a window comes to: a new frame, a beep (no screen under
// the window), or nothing at all (next display with only one display).
struct WindowSnapPlan {
    enum class Outcome { apply, beep, nothing };
    Outcome outcome = Outcome::nothing;
    Rect frame;

    static WindowSnapPlan make(SnapAction action, const Rect& window,
                               const DisplayLayout& displays);
};

}  // namespace quorvane
