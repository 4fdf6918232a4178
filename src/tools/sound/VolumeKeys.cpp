#include "tools/sound/VolumeKeys.hpp"

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr std::int64_t kKeyDown = 0xA;
constexpr std::int64_t kKeyUp = 0xB;
// A stored volume is a float and rarely sits exactly on a step.
constexpr double kOnStep = 1e-3;

}  // namespace

std::optional<VolumeKeys::Press> VolumeKeys::press(std::int16_t subtype, std::int64_t data1) {
    if (subtype != kAuxControlButtons) {
        return std::nullopt;
    }
    const std::int64_t keyType = (data1 >> 16) & 0xFFFF;
    const std::int64_t state = (data1 >> 8) & 0xFF;
    if (state != kKeyDown && state != kKeyUp) {
        return std::nullopt;
    }
    Press result{Key::mute, state == kKeyDown, (data1 & 1) != 0};
    switch (keyType) {
        case kSoundUp:
            result.key = Key::up;
            return result;
        case kSoundDown:
            result.key = Key::down;
            return result;
        case kMute:
            return result;
        default:
            return std::nullopt;
    }
}

std::int64_t VolumeKeys::data1(std::int64_t keyType, bool down, bool repeat) {
    return (keyType << 16) | ((down ? kKeyDown : kKeyUp) << 8) | (repeat ? 1 : 0);
}

VolumeKeys::Level VolumeKeys::apply(Key key, bool fine, Level now) {
    if (key == Key::mute) {
        return {now.volume, !now.muted};
    }
    const double steps = fine ? kFineSteps : kSteps;
    const double position = std::clamp(static_cast<double>(now.volume), 0.0, 1.0) * steps;
    // From between two steps, the first press lands on the next step in that direction.
    const double next =
        key == Key::up ? std::floor(position + kOnStep) + 1 : std::ceil(position - kOnStep) - 1;
    const auto volume = static_cast<float>(std::clamp(next / steps, 0.0, 1.0));
    // Any volume change unmutes, except turning it all the way down.
    return {volume, volume == 0.0f && now.muted};
}

HUDCard VolumeKeys::card(Level level) {
    const char* symbol = level.muted || level.volume <= 0 ? "speaker.slash.fill"
                         : level.volume < 1.0 / 3         ? "speaker.wave.1.fill"
                         : level.volume < 2.0 / 3         ? "speaker.wave.2.fill"
                                                          : "speaker.wave.3.fill";
    return HUDCard{symbol, level.muted ? "Muted" : "Volume",
                   level.muted ? 0.0 : static_cast<double>(level.volume)};
}

}  // namespace quorvane
