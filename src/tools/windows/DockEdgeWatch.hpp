#pragma once

#include <functional>
#include <optional>

#include "base/Point.hpp"
#include "platform/Scheduler.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

// Follows the pointer and says when it has just reached the bottom edge of a display the Dock
// is not on: that is when the Dock should come over, without the system's long dwell.
class DockEdgeWatch {
public:
    // How close to the bottom counts as the edge, in points.
    static constexpr double kEdge = 2;
    // One summons per arrival, and at most one a second, so a pointer resting on the edge
    // does not keep pushing.
    static constexpr Seconds kCooldown{1.0};

    // The point to push the Dock from; nothing most of the time. Accessibility coordinates.
    // Where the Dock is costs a message to the Dock, so it is asked only on an arrival.
    std::optional<Point> moved(Point location, const DisplayLayout& displays,
                               const std::function<std::optional<std::size_t>()>& dockDisplay,
                               Seconds now);

private:
    bool atEdge_ = false;
    std::optional<Seconds> last_;
};

}  // namespace quorvane
