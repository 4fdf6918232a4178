#pragma once

#include <cstdint>
#include <optional>

#include "platform/DisplayControl.hpp"

namespace quorvane {

// The brightness keys and what a level means for a display dimmed through its gamma table.
struct BrightnessKeys {
    // Key types in a media-key event's data1, as VolumeKeys reads the volume keys.
    static constexpr std::int64_t kBrightnessUp = 2;
    static constexpr std::int64_t kBrightnessDown = 3;
    // Dimming by gamma stops here, so a screen never goes black with no way to see it back.
    static constexpr double kGammaFloor = 0.1;

    struct Press {
        bool up = true;
        bool down = true;  // the key went down (not up)
    };

    // Nothing for every other system-defined event.
    static std::optional<Press> press(std::int16_t subtype, std::int64_t data1);
    // One press from `level` (0…1): a sixteenth, or a sixty-fourth with ⌥⇧, landing on steps
    // as the system's own brightness keys do.
    static double step(double level, bool up, bool fine);
    // The display's own table scaled down to `level`.
    static DisplayControl::GammaTable dimmed(const DisplayControl::GammaTable& original,
                                             double level);
};

}  // namespace quorvane
