#include "tools/system/BrightnessKeys.hpp"

#include <algorithm>

#include "tools/sound/VolumeKeys.hpp"

namespace quorvane {

std::optional<BrightnessKeys::Press> BrightnessKeys::press(std::int16_t subtype,
                                                           std::int64_t data1) {
    if (subtype != VolumeKeys::kAuxControlButtons) {
        return std::nullopt;
    }
    const std::int64_t keyType = (data1 >> 16) & 0xFFFF;
    const std::int64_t state = (data1 >> 8) & 0xFF;
    const bool isDown = state == 0xA;
    if ((keyType != kBrightnessUp && keyType != kBrightnessDown) || (!isDown && state != 0xB)) {
        return std::nullopt;
    }
    return Press{keyType == kBrightnessUp, isDown};
}

double BrightnessKeys::step(double level, bool up, bool fine) {
    // The same sixteen steps as the volume keys, and the same landing on a step.
    const auto next = VolumeKeys::apply(up ? VolumeKeys::Key::up : VolumeKeys::Key::down, fine,
                                        {static_cast<float>(std::clamp(level, 0.0, 1.0)), false});
    return next.volume;
}

DisplayControl::GammaTable BrightnessKeys::dimmed(const DisplayControl::GammaTable& original,
                                                  double level) {
    const auto factor =
        static_cast<float>(kGammaFloor + (1 - kGammaFloor) * std::clamp(level, 0.0, 1.0));
    DisplayControl::GammaTable table = original;
    for (auto* channel : {&table.red, &table.green, &table.blue}) {
        for (float& value : *channel) {
            value *= factor;
        }
    }
    return table;
}

}  // namespace quorvane
