#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

Rect DisplayLayout::toAccessibility(const Rect& screenRect) const {
    const double primaryHeight = displays_.empty() ? 0 : displays_.front().frame.height();
    return {screenRect.minX(), primaryHeight - screenRect.maxY(), screenRect.width(),
            screenRect.height()};
}

std::optional<std::size_t> DisplayLayout::displayContaining(Point point) const {
    for (std::size_t i = 0; i < displays_.size(); ++i) {
        if (toAccessibility(displays_[i].frame).contains(point)) {
            return i;
        }
    }
    return std::nullopt;
}

Rect DisplayLayout::visibleArea(std::size_t index) const {
    return toAccessibility(displays_.at(index).visibleFrame);
}

}  // namespace quorvane
