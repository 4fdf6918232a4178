#include "tools/windows/WindowSnapPlan.hpp"

namespace quorvane {

WindowSnapPlan WindowSnapPlan::make(SnapAction action, const Rect& window,
                                    const DisplayLayout& displays) {
    const auto current = displays.displayContaining({window.midX(), window.midY()});
    if (!current) {
        return {Outcome::beep, {}};
    }
    std::size_t target = *current;
    if (action == SnapAction::nextDisplay) {
        if (displays.count() < 2) {
            return {Outcome::nothing, {}};
        }
        target = (*current + 1) % displays.count();
    }
    return {Outcome::apply, snapFrame(action, window, displays.visibleArea(target))};
}

}  // namespace quorvane
