#include "tools/system/DayAgenda.hpp"

#include <algorithm>
#include <tuple>

namespace quorvane {

namespace {

bool coversDay(const CalendarEvents::Event& event, double dayStart, double dayEnd) {
    return event.allDay || (event.start <= dayStart && event.end >= dayEnd);
}

}  // namespace

std::vector<CalendarEvents::Event> DayAgenda::onDay(std::vector<CalendarEvents::Event> events,
                                                    double dayStart, double dayEnd) {
    std::erase_if(events, [&](const CalendarEvents::Event& event) {
        const bool overlaps =
            event.start < dayEnd &&
            (event.end > dayStart || (event.end == event.start && event.start == dayStart));
        return !overlaps;
    });
    std::stable_sort(events.begin(), events.end(),
                     [&](const CalendarEvents::Event& a, const CalendarEvents::Event& b) {
                         return std::make_tuple(!coversDay(a, dayStart, dayEnd), a.start, a.title) <
                                std::make_tuple(!coversDay(b, dayStart, dayEnd), b.start, b.title);
                     });
    return events;
}

std::string DayAgenda::line(const CalendarEvents::Event& event, double dayStart, double dayEnd,
                            const std::function<std::string(double)>& time) {
    std::string when;
    if (coversDay(event, dayStart, dayEnd)) {
        when = "All day";
    } else if (event.start < dayStart) {
        when = "until " + time(event.end);
    } else if (event.end > dayEnd) {
        when = "from " + time(event.start);
    } else if (event.end == event.start) {
        when = time(event.start);
    } else {
        when = time(event.start) + " – " + time(event.end);
    }
    return when + "  " + (event.title.empty() ? "New Event" : event.title);
}

}  // namespace quorvane
