#pragma once

#include <algorithm>
#include <cmath>

namespace quorvane {

// A level as a row of 16 segments, each 8 by 7 points with 2 points between them and corners
// of radius 1. Segments past the filled count are drawn at 20 % opacity.
struct LevelBar {
    static constexpr int kSegments = 16;
    static constexpr double kSegmentWidth = 8;
    static constexpr double kSegmentHeight = 7;
    static constexpr double kSpacing = 2;
    static constexpr double kCornerRadius = 1;
    static constexpr double kUnfilledOpacity = 0.2;

    double level = 0;

    // Out-of-range levels are clamped, so a level of 1.7 fills every segment and one below 0
    // (or not a number at all) fills none.
    int filledSegments() const {
        if (!(level > 0)) {
            return 0;
        }
        return static_cast<int>(std::round(std::min(level, 1.0) * kSegments));
    }
    // The opacity of the segment at `index`, counted from the left.
    double segmentOpacity(int index) const {
        return index < filledSegments() ? 1.0 : kUnfilledOpacity;
    }
};

}  // namespace quorvane
