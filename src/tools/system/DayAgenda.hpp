#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/CalendarEvents.hpp"

namespace quorvane {

// One day's events as the calendar panel lists them. Dates are seconds since 2001-01-01 UTC.
struct DayAgenda {
    // The events that overlap [dayStart, dayEnd): an event that ends as the day begins does not,
    // one that lasts no time at the day's first moment does. All-day events (and events that
    // cover the whole day) come first, then by start, then by title.
    static std::vector<CalendarEvents::Event> onDay(std::vector<CalendarEvents::Event> events,
                                                    double dayStart, double dayEnd);
    // "All day  Holiday", "09:00 – 09:30  Standup", "until 10:00  Flight", "from 22:00  Party";
    // `time` writes a moment as the user reads times.
    static std::string line(const CalendarEvents::Event& event, double dayStart, double dayEnd,
                            const std::function<std::string(double)>& time);
};

}  // namespace quorvane
