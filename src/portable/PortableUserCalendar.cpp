#include "portable/PortableUserCalendar.hpp"

#include <ctime>

namespace quorvane {

namespace {

constexpr double kReferenceDate = 978307200;  // 2001-01-01 00:00:00 UTC in Unix time

}  // namespace

UserCalendar::Components PortableUserCalendar::components(double date) {
    const auto seconds = static_cast<std::time_t>(date + kReferenceDate);
    std::tm tm{};
    if (utc_) {
        gmtime_r(&seconds, &tm);
    } else {
        localtime_r(&seconds, &tm);
    }
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday};
}

double PortableUserCalendar::startOfDay(const Components& day) {
    std::tm tm{};
    tm.tm_year = day.year - 1900;
    tm.tm_mon = day.month - 1;
    tm.tm_mday = day.day;
    tm.tm_isdst = -1;
    return static_cast<double>(utc_ ? timegm(&tm) : std::mktime(&tm)) - kReferenceDate;
}

std::vector<std::string> PortableUserCalendar::monthSymbols() {
    return {"January", "February", "March",     "April",   "May",      "June",
            "July",    "August",   "September", "October", "November", "December"};
}

std::vector<std::string> PortableUserCalendar::weekdaySymbols() {
    return {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
}

}  // namespace quorvane
