#include "tools/keyboard/ClipboardPanelPlacement.hpp"

#include <algorithm>

namespace quorvane {

Rect ClipboardPanelPlacement::frame(Point anchor, const std::vector<Screen>& screens) {
    Rect visible(anchor.x - kWidth, anchor.y - kHeight, 2 * kWidth, 2 * kHeight);
    const auto screen = std::find_if(screens.begin(), screens.end(),
                                     [&](const Screen& s) { return s.frame.contains(anchor); });
    if (screen != screens.end()) {
        visible = screen->visibleFrame;
    } else if (!screens.empty()) {
        visible = screens.front().visibleFrame;
    }
    double y = anchor.y - kHeight;
    if (y < visible.minY()) {
        y = anchor.y + kBelowGap;
    }
    // The lower bound wins on a screen too small for the panel, keeping its top-left visible.
    const double x =
        std::max(visible.minX() + kMargin, std::min(anchor.x, visible.maxX() - kWidth - kMargin));
    y = std::max(visible.minY() + kMargin, std::min(y, visible.maxY() - kHeight - kMargin));
    return {x, y, kWidth, kHeight};
}

}  // namespace quorvane
