#pragma once

#include <optional>
#include <string>

namespace quorvane {

// The usual content of the on-screen notice: a symbol, a title and, for volume or brightness,
// a level bar. Laid out as a 220-point-wide stack with spacing 14 and 24 points of padding: the
// symbol at 52 points in a 64-point-high frame, the title in headline type, then the bar, on a
// regular material with rounded corners of radius 20 and 10 points of outer padding.
struct HUDCard {
    static constexpr double kWidth = 220;
    static constexpr double kSpacing = 14;
    static constexpr double kPadding = 24;
    static constexpr double kOuterPadding = 10;
    static constexpr double kSymbolSize = 52;
    static constexpr double kSymbolFrameHeight = 64;
    static constexpr double kCornerRadius = 20;

    std::string systemImage;  // an SF Symbols name
    std::string title;
    std::optional<double> level;  // 0 to 1

    friend bool operator==(const HUDCard&, const HUDCard&) = default;
};

}  // namespace quorvane
