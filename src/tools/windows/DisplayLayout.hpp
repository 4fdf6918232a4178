#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/Rect.hpp"

namespace quorvane {

// The displays as the platform lists them: frames in screen coordinates (origin at the bottom
// left of the primary display, y upward), the first display being the primary one. Window
// tools work in accessibility coordinates (origin at the top left of the primary display,
// y downward); this is where the two meet.
class DisplayLayout {
public:
    struct Display {
        Rect frame;
        Rect visibleFrame;  // without the menu bar and the Dock
    };

    explicit DisplayLayout(std::vector<Display> displays) : displays_(std::move(displays)) {}

    std::size_t count() const { return displays_.size(); }
    Rect toAccessibility(const Rect& screenRect) const;
    // The first display whose frame holds the point (accessibility coordinates).
    std::optional<std::size_t> displayContaining(Point point) const;
    // A display's usable area in accessibility coordinates.
    Rect visibleArea(std::size_t index) const;

private:
    std::vector<Display> displays_;
};

}  // namespace quorvane
