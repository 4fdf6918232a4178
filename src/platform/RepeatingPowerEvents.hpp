#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.hpp"

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
    // The keys' strings; the Mac layer checks each against the system's name for it.
    static constexpr std::string_view kPowerOnKey = "RepeatingPowerOn";
    static constexpr std::string_view kPowerOffKey = "RepeatingPowerOff";
    static constexpr std::string_view kTypeKey = "eventtype";
    static constexpr std::string_view kTimeKey = "time";
    static constexpr std::string_view kWeekdaysKey = "weekdays";

    // IOPMCopyRepeatingPowerEvents' dictionary; an event lacking any of its three keys is none.
    static RepeatingPowerEvents read(const PreferenceValue::Dictionary& events);
    // The same for the copied value as it converted; none unless it is a dictionary.
    static RepeatingPowerEvents read(const std::optional<PreferenceValue>& events);
    friend bool operator==(const RepeatingPowerEvents&, const RepeatingPowerEvents&) = default;
};

}  // namespace quorvane
