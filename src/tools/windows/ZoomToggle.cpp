#include "tools/windows/ZoomToggle.hpp"

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

// The window server rounds frames to whole points, and some apps keep a few points off the
// edge; a frame this close to the filled one still counts as filled.
constexpr double kTolerance = 2.0;

bool near(const Rect& a, const Rect& b) {
    return std::abs(a.minX() - b.minX()) <= kTolerance &&
           std::abs(a.minY() - b.minY()) <= kTolerance &&
           std::abs(a.width() - b.width()) <= kTolerance &&
           std::abs(a.height() - b.height()) <= kTolerance;
}

}  // namespace

std::optional<Rect> ZoomToggle::click(int pid, const std::string& title, const Rect& current,
                                      const Rect& visibleArea) {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) {
        return e.pid == pid && e.title == title;
    });
    if (found != entries_.end()) {
        const Entry entry = *found;
        entries_.erase(found);
        if (near(current, entry.filled)) {
            return entry.original;
        }
        // Moved or resized since it was filled: that is its own place now, so fill again.
    }
    const Rect filled = visibleArea.integral();
    if (near(current, filled)) {
        return std::nullopt;
    }
    entries_.push_back({pid, title, filled, current});
    if (entries_.size() > kLimit) {
        entries_.erase(entries_.begin());
    }
    return filled;
}

bool ZoomToggle::inButtonCorner(Point point, const std::vector<WindowInfo>& windows) {
    for (const auto& window : windows) {
        if (!window.bounds.contains(point)) {
            continue;
        }
        // The frontmost window there decides: a menu or the Dock above a window hides it.
        return window.layer == 0 && point.x < window.bounds.minX() + kButtonCornerWidth &&
               point.y < window.bounds.minY() + kButtonCornerHeight;
    }
    return false;
}

void ZoomToggle::forget(int pid) {
    std::erase_if(entries_, [pid](const Entry& e) { return e.pid == pid; });
}

}  // namespace quorvane
