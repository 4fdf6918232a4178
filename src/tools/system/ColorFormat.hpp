#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ColorSampler.hpp"

namespace quorvane {

// How a picked colour is written for pasting into code or a design tool. The colour is first
// rounded to 8 bits a channel, so the three forms always name the same colour.
class ColorFormat {
public:
    enum class Kind { hex, rgb, hsl };

    static std::string_view raw(Kind kind);
    static std::optional<Kind> parse(std::string_view raw);
    // "#1E90FF", "rgb(30, 144, 255)", "hsl(210, 100%, 56%)".
    static std::string format(const ColorSampler::Color& color, Kind kind);
};

}  // namespace quorvane
