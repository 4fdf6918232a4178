#pragma once

#include <functional>
#include <optional>

#include "base/Subscription.hpp"

namespace quorvane {

// The system's magnifying colour sampler (NSColorSampler). It needs no permission: the system
// draws it and hands back only the one colour the user clicked.
class ColorSampler {
public:
    // Components in sRGB, 0 to 1.
    struct Color {
        double red = 0;
        double green = 0;
        double blue = 0;
        friend bool operator==(const Color&, const Color&) = default;
    };
    using Handler = std::function<void(std::optional<Color> picked)>;

    virtual ~ColorSampler() = default;

    // Shows the sampler; the handler gets nothing when the user pressed Esc.
    [[nodiscard]] virtual Subscription sample(Handler handler) = 0;
};

}  // namespace quorvane
