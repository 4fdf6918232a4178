#include "portable/PortableDateFormatting.hpp"

#include <array>
#include <cmath>
#include <ctime>

namespace quorvane {

namespace {

// Seconds from the Unix epoch to 2001-01-01 00:00:00 UTC.
constexpr double kReferenceDateOffset = 978307200.0;

constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};
constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};

std::string twoDigits(int value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

}  // namespace

std::string PortableDateFormatting::format(double date, Style dateStyle, Style timeStyle) {
    const auto seconds = static_cast<std::time_t>(std::floor(date + kReferenceDateOffset));
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr) {
        return {};
    }
    const int year = local.tm_year + 1900;
    const std::string month = kMonths[static_cast<std::size_t>(local.tm_mon)];
    std::string datePart;
    switch (dateStyle) {
        case Style::none:
            break;
        case Style::shortStyle:
            datePart = std::to_string(local.tm_mon + 1) + "/" + std::to_string(local.tm_mday) +
                       "/" + twoDigits(year % 100);
            break;
        case Style::mediumStyle:
            datePart = month.substr(0, 3) + " " + std::to_string(local.tm_mday) + ", " +
                       std::to_string(year);
            break;
        case Style::longStyle:
            datePart = month + " " + std::to_string(local.tm_mday) + ", " + std::to_string(year);
            break;
        case Style::fullStyle:
            datePart = std::string(kWeekdays[static_cast<std::size_t>(local.tm_wday)]) + ", " +
                       month + " " + std::to_string(local.tm_mday) + ", " + std::to_string(year);
            break;
    }
    std::string timePart;
    if (timeStyle != Style::none) {
        const int hour = local.tm_hour % 12 == 0 ? 12 : local.tm_hour % 12;
        timePart = std::to_string(hour) + ":" + twoDigits(local.tm_min);
        if (timeStyle != Style::shortStyle) {
            timePart += ":" + twoDigits(local.tm_sec);
        }
        timePart += local.tm_hour < 12 ? " AM" : " PM";
    }
    if (!datePart.empty() && !timePart.empty()) {
        return datePart + " at " + timePart;
    }
    return datePart + timePart;
}

}  // namespace quorvane
