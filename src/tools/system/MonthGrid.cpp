#include "tools/system/MonthGrid.hpp"

namespace quorvane {

namespace {

// Days since 1970-01-01 in the proleptic Gregorian calendar (Howard Hinnant's days_from_civil),
// written out because not every standard library we build with has the C++20 calendar yet.
long daysFromCivil(int year, int month, int day) {
    year -= month <= 2 ? 1 : 0;
    const long era = (year >= 0 ? year : year - 399) / 400;
    const long yearOfEra = year - era * 400;
    const long dayOfYear = (153L * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

}  // namespace

int MonthGrid::weekday(int year, int month, int day) {
    // 1970-01-01 was a Thursday (5).
    const long days = daysFromCivil(year, month, day);
    return static_cast<int>(((days % 7) + 7 + 4) % 7) + 1;
}

int MonthGrid::daysIn(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : kDays[month - 1];
}

MonthGrid MonthGrid::make(int year, int month, int firstWeekday, Date today) {
    if (firstWeekday < 1 || firstWeekday > 7) {
        firstWeekday = 1;
    }
    MonthGrid grid;
    for (int column = 0; column < 7; ++column) {
        grid.columns.push_back((firstWeekday - 1 + column) % 7 + 1);
    }
    const int lead = (weekday(year, month, 1) - firstWeekday + 7) % 7;
    const int length = daysIn(year, month);
    const int previousMonth = month == 1 ? 12 : month - 1;
    const int previousYear = month == 1 ? year - 1 : year;
    const int nextMonth = month == 12 ? 1 : month + 1;
    const int nextYear = month == 12 ? year + 1 : year;
    const int cells = (lead + length + 6) / 7 * 7;
    for (int cell = 0; cell < cells; ++cell) {
        Day day;
        const int number = cell - lead + 1;
        if (number < 1) {
            day = {previousYear, previousMonth, daysIn(previousYear, previousMonth) + number};
        } else if (number > length) {
            day = {nextYear, nextMonth, number - length};
        } else {
            day = {year, month, number, true};
        }
        day.isToday = day.year == today.year && day.month == today.month && day.day == today.day;
        if (cell % 7 == 0) {
            grid.weeks.emplace_back();
        }
        grid.weeks.back().push_back(day);
    }
    return grid;
}

}  // namespace quorvane
