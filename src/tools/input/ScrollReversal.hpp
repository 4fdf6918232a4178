#pragma once

#include <cstdint>

namespace quorvane {

class Event;
class Preferences;

// The two settings of the scroll-direction tool: which device's scrolling it turns around.
// Smooth scrolling swallows mouse wheel events before or after that tool sees them, so it reads
// these too and applies the reversal itself; this type is what both read, so neither calls the
// other.
struct ScrollReversal {
    static constexpr const char* kToolID = "scroll-direction";
    static constexpr const char* kReverseMouseKey = "scrollDirection.reverseMouse";
    static constexpr const char* kReverseTrackpadKey = "scrollDirection.reverseTrackpad";
    // Written into the source user-data field of an event the tool turned around (when that
    // field was free), so a tap after it does not turn it back.
    static constexpr std::int64_t kReversedTag = 0x4B564C545352;

    // The usual reason for the tool: the trackpad stays natural, the wheel goes the classic way.
    bool reverseMouse = true;
    bool reverseTrackpad = false;

    static ScrollReversal read(const Preferences& preferences);
    // True when the scroll-direction tool is switched on and turns mouse wheels around.
    static bool reversesMouseWheels(const Preferences& preferences);

    // A trackpad (or a Magic Mouse, which scrolls the same way) sends continuous events that
    // carry a gesture or momentum phase. A wheel sends discrete steps; drivers that smooth a
    // wheel send continuous events with no phase.
    static bool isTrackpad(const Event& event);
    bool applies(const Event& event) const {
        return isTrackpad(event) ? reverseTrackpad : reverseMouse;
    }
    // Negates every delta field of both axes, lines, fixed-point and pixels alike, so every
    // reader of the event sees the same direction; marks the event when its tag field is free.
    static void reverse(Event& event);
};

}  // namespace quorvane
