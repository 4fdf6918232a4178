#include "tools/windows/DockEdgeWatch.hpp"

namespace quorvane {

std::optional<Point> DockEdgeWatch::moved(
    Point location, const DisplayLayout& displays,
    const std::function<std::optional<std::size_t>()>& dockDisplay, Seconds now) {
    const auto display = displays.displayContaining(location);
    const bool atEdge = display && location.y >= displays.frame(*display).maxY() - kEdge;
    const bool arrived = atEdge && !atEdge_;
    atEdge_ = atEdge;
    if (!arrived || (last_ && now - *last_ < kCooldown) || display == dockDisplay()) {
        return std::nullopt;
    }
    last_ = now;
    return Point{location.x, displays.frame(*display).maxY() - 1};
}

}  // namespace quorvane
