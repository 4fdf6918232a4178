#pragma once

#include <cstdint>

#include "platform/EventType.hpp"

namespace quorvane {

// What happens to each event while the keyboard is locked for cleaning: every key, modifier and
// media key is swallowed; a click, or Escape pressed five times in a row, unlocks. Scrolls and
// gestures are swallowed too when the trackpad is locked as well.
class KeyboardLock {
public:
    static constexpr std::uint16_t kEscapeKeyCode = 53;
    static constexpr int kEscapesToUnlock = 5;

    struct Outcome {
        bool pass = true;
        bool unlock = false;
    };

    Outcome handle(EventType type, std::uint16_t keyCode, bool autorepeat, bool lockTrackpad);
    int escapes() const { return escapes_; }
    void reset() { escapes_ = 0; }

private:
    int escapes_ = 0;
};

}  // namespace quorvane
