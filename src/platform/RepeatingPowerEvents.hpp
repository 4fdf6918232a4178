#pragma once

#include <optional>
#include <string>

namespace quorvane {

// The weekly power schedule as power management keeps it (IOPMCopyRepeatingPowerEvents): at
// most one event that starts the Mac and one that stops it.
struct RepeatingPowerEvents {
    struct Event {
        // kIOPMPowerEventTypeKey: "wakepoweron", "wake", "poweron" for the start;
        // "sleep", "shutdown", "restart" for the stop.
        std::string type;
        // kIOPMPowerEventTimeKey: minutes after midnight, local time.
        int minutes = 0;
        // kIOPMDaysOfWeekKey: bit 0 Monday … bit 6 Sunday.
        int weekdays = 0;
        friend bool operator==(const Event&, const Event&) = default;
    };
    std::optional<Event> powerOn;   // kIOPMRepeatingPowerOnKey
    std::optional<Event> powerOff;  // kIOPMRepeatingPowerOffKey
    friend bool operator==(const RepeatingPowerEvents&, const RepeatingPowerEvents&) = default;
};

}  // namespace quorvane
