#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/Rect.hpp"

namespace quorvane {

class DisplayConfiguration;
class Screens;

// The displays as the platform lists them: frames in screen coordinates (origin at the bottom
// left of the primary display, y upward), the first display being the primary one. Window
// tools work in accessibility coordinates (origin at the top left of the primary display,
// y downward); this is where the two meet.
class DisplayLayout {
public:
    struct Display {
        Rect frame;
        Rect visibleFrame;    // without the menu bar and the Dock
        std::string id = {};  // stable across reconnections; empty when unknown
    };

    explicit DisplayLayout(std::vector<Display> displays) : displays_(std::move(displays)) {}

    // The displays connected now, each with its identifier.
    static DisplayLayout read(Screens& screens, DisplayConfiguration& configuration);

    std::size_t count() const { return displays_.size(); }
    const std::string& id(std::size_t index) const { return displays_.at(index).id; }
    std::vector<std::string> ids() const;
    std::optional<std::size_t> indexOf(const std::string& id) const;
    // A display's whole frame in accessibility coordinates.
    Rect frame(std::size_t index) const { return toAccessibility(displays_.at(index).frame); }
    Rect toAccessibility(const Rect& screenRect) const;
    // The first display whose frame holds the point (accessibility coordinates).
    std::optional<std::size_t> displayContaining(Point point) const;
    // A display's usable area in accessibility coordinates.
    Rect visibleArea(std::size_t index) const;
    // The frame shrunk to fit a display's usable area if need be, then moved inside it.
    Rect clampInto(const Rect& frame, std::size_t index) const;
    // The same on the display holding the frame's centre, else the one it overlaps most, else
    // the main display. Frames are returned unchanged when there are no displays.
    Rect clampToVisibleArea(const Rect& frame) const;

private:
    std::vector<Display> displays_;
};

}  // namespace quorvane
