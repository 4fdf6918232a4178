#pragma once

#include <vector>

#include "base/Rect.hpp"
#include "platform/Screen.hpp"

namespace quorvane {

// Where the list opens: under the anchor (a right-click or the text caret), or above it when
// there is no room below, always 8 points inside the visible part of the anchor's screen.
struct ClipboardPanelPlacement {
    static constexpr double kWidth = 400;
    static constexpr double kHeight = 460;
    static constexpr double kMargin = 8;
    static constexpr double kBelowGap = 30;

    static Rect frame(Point anchor, const std::vector<Screen>& screens);
};

}  // namespace quorvane
