#include "tools/system/PowerSchedule.hpp"

#include <array>
#include <cstdio>

namespace quorvane {

namespace {

constexpr std::array<const char*, 7> kDayNames = {"Mondays", "Tuesdays",  "Wednesdays", "Thursdays",
                                                  "Fridays", "Saturdays", "Sundays"};

std::string clock(int minutes, bool seconds) {
    // Room for any int, so the compiler can see nothing is cut.
    char text[40];
    std::snprintf(text, sizeof text, seconds ? "%02d:%02d:00" : "%02d:%02d", minutes / 60,
                  minutes % 60);
    return text;
}

// Power management names a start "wakepoweron"; pmset's command spells it "wakeorpoweron".
std::string pmsetType(const std::string& type) {
    return type == "wakepoweron" ? "wakeorpoweron" : type;
}

std::string verb(const std::string& type) {
    if (type == "wakepoweron") {
        return "Starts or wakes";
    }
    if (type == "wake") {
        return "Wakes";
    }
    if (type == "poweron") {
        return "Starts";
    }
    if (type == "sleep") {
        return "Sleeps";
    }
    if (type == "shutdown") {
        return "Shuts down";
    }
    if (type == "restart") {
        return "Restarts";
    }
    return "Runs \"" + type + "\"";
}

}  // namespace

RepeatingPowerEvents PowerSchedule::events() const {
    RepeatingPowerEvents events;
    if (wake && wakeDays != 0) {
        events.powerOn = RepeatingPowerEvents::Event{"wakepoweron", wakeMinutes, wakeDays};
    }
    if (stop != Stop::none && stopDays != 0) {
        events.powerOff = RepeatingPowerEvents::Event{rawValue(stop), stopMinutes, stopDays};
    }
    return events;
}

std::vector<std::string> PowerSchedule::pmsetArguments(const RepeatingPowerEvents& events) {
    std::vector<std::string> arguments = {"repeat"};
    for (const auto& event : {events.powerOn, events.powerOff}) {
        if (event) {
            arguments.push_back(pmsetType(event->type));
            arguments.push_back(dayLetters(event->weekdays));
            arguments.push_back(clock(event->minutes, true));
        }
    }
    if (arguments.size() == 1) {
        arguments.push_back("cancel");
    }
    return arguments;
}

std::string PowerSchedule::describe(const RepeatingPowerEvents& events) {
    std::string text;
    for (const auto& event : {events.powerOn, events.powerOff}) {
        if (event) {
            text += (text.empty() ? "" : " ") + verb(event->type) + " at " +
                    timeText(event->minutes) + " " + daysTitle(event->weekdays) + ".";
        }
    }
    return text.empty() ? "No schedule." : text;
}

std::optional<int> PowerSchedule::parseTime(const std::string& text) {
    const auto colon = text.find(':');
    if (colon == std::string::npos || colon == 0 || colon > 2 || text.size() != colon + 3) {
        return std::nullopt;
    }
    int hours = 0;
    int minutes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == colon) {
            continue;
        }
        if (text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        }
        int& part = i < colon ? hours : minutes;
        part = part * 10 + (text[i] - '0');
    }
    if (hours > 23 || minutes > 59) {
        return std::nullopt;
    }
    return hours * 60 + minutes;
}

std::string PowerSchedule::timeText(int minutes) {
    return clock(minutes, false);
}

std::string PowerSchedule::dayLetters(int weekdays) {
    static constexpr const char* kLetters = "MTWRFSU";
    std::string letters;
    for (int day = 0; day < 7; ++day) {
        if ((weekdays & (1 << day)) != 0) {
            letters += kLetters[day];
        }
    }
    return letters;
}

std::string PowerSchedule::daysTitle(int weekdays) {
    switch (weekdays & kEveryDay) {
        case kEveryDay:
            return "every day";
        case kWeekdays:
            return "on weekdays";
        case kWeekends:
            return "at weekends";
        default:
            break;
    }
    std::string title;
    for (int day = 0; day < 7; ++day) {
        if ((weekdays & (1 << day)) != 0) {
            title += (title.empty() ? "on " : ", ") + std::string(kDayNames[day]);
        }
    }
    return title;
}

const std::vector<int>& PowerSchedule::dayChoices() {
    static const std::vector<int> choices = {kEveryDay, kWeekdays, kWeekends, 1,  2,
                                             4,         8,         16,        32, 64};
    return choices;
}

int PowerSchedule::validDays(std::optional<long long> stored, int fallback) {
    return stored && *stored > 0 && *stored <= kEveryDay ? static_cast<int>(*stored) : fallback;
}

std::optional<PowerSchedule::Stop> PowerSchedule::stopFromRaw(const std::string& raw) {
    for (const auto stop : {Stop::none, Stop::sleep, Stop::shutdown, Stop::restart}) {
        if (rawValue(stop) == raw) {
            return stop;
        }
    }
    return std::nullopt;
}

std::string PowerSchedule::rawValue(Stop stop) {
    switch (stop) {
        case Stop::sleep:
            return "sleep";
        case Stop::shutdown:
            return "shutdown";
        case Stop::restart:
            return "restart";
        case Stop::none:
            break;
    }
    return "none";
}

}  // namespace quorvane
