#pragma once

#include <cstdint>
#include <optional>

#include "ui/HUDCard.hpp"

namespace quorvane {

// The volume keys as data: which key a system-defined event carries, and what one press does
// to the output's volume and mute. Steps are a sixteenth of the range, a sixty-fourth with ⌥⇧,
// as the system's own keys step.
struct VolumeKeys {
    // The media keys' events: subtype 8, key type in the high half of data1, key state in
    // bits 8–15 (0xA down, 0xB up), bit 0 set on repeats. unconfirmed: check on a Mac first.
    static constexpr std::int16_t kAuxControlButtons = 8;
    static constexpr std::int64_t kSoundUp = 0;
    static constexpr std::int64_t kSoundDown = 1;
    static constexpr std::int64_t kMute = 7;
    static constexpr int kSteps = 16;
    static constexpr int kFineSteps = 64;

    enum class Key { up, down, mute };
    struct Press {
        Key key;
        bool down = true;
        bool repeat = false;
    };
    struct Level {
        float volume = 0;
        bool muted = false;
        friend bool operator==(const Level&, const Level&) = default;
    };

    // Nothing for every other system-defined event (brightness, play, the power button).
    static std::optional<Press> press(std::int16_t subtype, std::int64_t data1);
    // The event's data for a key, as the keyboard sends it.
    static std::int64_t data1(std::int64_t keyType, bool down, bool repeat = false);
    static Level apply(Key key, bool fine, Level now);
    static HUDCard card(Level level);
};

}  // namespace quorvane
