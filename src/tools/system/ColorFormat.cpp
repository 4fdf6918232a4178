#include "tools/system/ColorFormat.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quorvane {

namespace {

int channel(double value) {
    // NaN from a broken conversion counts as black rather than as an undefined cast.
    if (!(value > 0)) {
        return 0;
    }
    return static_cast<int>(std::lround(std::min(value, 1.0) * 255));
}

}  // namespace

std::string_view ColorFormat::raw(Kind kind) {
    switch (kind) {
        case Kind::hex:
            return "hex";
        case Kind::rgb:
            return "rgb";
        case Kind::hsl:
            return "hsl";
    }
    return "hex";
}

std::optional<ColorFormat::Kind> ColorFormat::parse(std::string_view text) {
    for (const Kind kind : {Kind::hex, Kind::rgb, Kind::hsl}) {
        if (raw(kind) == text) {
            return kind;
        }
    }
    return std::nullopt;
}

std::string ColorFormat::format(const ColorSampler::Color& color, Kind kind) {
    const int r = channel(color.red);
    const int g = channel(color.green);
    const int b = channel(color.blue);
    char text[48];
    if (kind == Kind::hex) {
        std::snprintf(text, sizeof text, "#%02X%02X%02X", r, g, b);
        return text;
    }
    if (kind == Kind::rgb) {
        std::snprintf(text, sizeof text, "rgb(%d, %d, %d)", r, g, b);
        return text;
    }
    const double red = r / 255.0;
    const double green = g / 255.0;
    const double blue = b / 255.0;
    const double high = std::max({red, green, blue});
    const double low = std::min({red, green, blue});
    const double lightness = (high + low) / 2;
    const double chroma = high - low;
    double hue = 0;
    double saturation = 0;
    if (chroma > 0) {
        saturation = chroma / (1 - std::fabs(2 * lightness - 1));
        if (high == red) {
            hue = std::fmod((green - blue) / chroma + 6, 6);
        } else if (high == green) {
            hue = (blue - red) / chroma + 2;
        } else {
            hue = (red - green) / chroma + 4;
        }
        hue *= 60;
    }
    std::snprintf(text, sizeof text, "hsl(%ld, %ld%%, %ld%%)", std::lround(hue) % 360,
                  std::lround(saturation * 100), std::lround(lightness * 100));
    return text;
}

}  // namespace quorvane
