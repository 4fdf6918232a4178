#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/RepeatingPowerEvents.hpp"

namespace quorvane {

// The weekly schedule the user chose, as data: one time to wake or start the Mac, one time
// to put it to sleep, shut it down or restart it, each on a set of weekdays. Power management
// keeps at most one of each, which is all `pmset repeat` can say.
struct PowerSchedule {
    enum class Stop { none, sleep, shutdown, restart };
    static constexpr int kEveryDay = 0x7F;
    static constexpr int kWeekdays = 0x1F;
    static constexpr int kWeekends = 0x60;

    bool wake = false;
    int wakeDays = kWeekdays;
    int wakeMinutes = 8 * 60;
    Stop stop = Stop::none;
    int stopDays = kEveryDay;
    int stopMinutes = 23 * 60;

    RepeatingPowerEvents events() const;

    // The arguments of /usr/bin/pmset that make power management hold exactly these events:
    // "repeat wakeorpoweron MTWRF 08:00:00 sleep MTWRFSU 23:00:00", or "repeat cancel".
    static std::vector<std::string> pmsetArguments(const RepeatingPowerEvents& events);
    // "Starts or wakes at 08:00 on weekdays. Sleeps at 23:00 every day."
    static std::string describe(const RepeatingPowerEvents& events);

    // "07:30" and "7:30" read as 450; anything else is nothing.
    static std::optional<int> parseTime(const std::string& text);
    static std::string timeText(int minutes);
    // pmset's day letters, Monday first: "MTWRFSU".
    static std::string dayLetters(int weekdays);
    static std::string daysTitle(int weekdays);
    // The day sets the page offers: every day, weekdays, weekends and each single day.
    static const std::vector<int>& dayChoices();
    // A stored value that is no set of days falls back to the given default.
    static int validDays(std::optional<long long> stored, int fallback);
    static std::optional<Stop> stopFromRaw(const std::string& raw);
    static std::string rawValue(Stop stop);
};

}  // namespace quorvane
