#pragma once

#include <string>
#include <vector>

namespace quorvane {

// A calendar month laid out in weeks, as data: whole weeks from the user's first day of the
// week, with the neighbouring months' days filling the first and last week.
struct MonthGrid {
    struct Day {
        int year = 0;
        int month = 0;  // 1…12
        int day = 0;    // 1…31
        bool inMonth = false;
        bool isToday = false;
        friend bool operator==(const Day&, const Day&) = default;
    };
    struct Date {
        int year = 0;
        int month = 0;
        int day = 0;
    };

    // firstWeekday as the system's calendar numbers it: 1 Sunday, 2 Monday … 7 Saturday.
    static MonthGrid make(int year, int month, int firstWeekday, Date today);

    // Weekday numbers (1 Sunday … 7 Saturday) of the columns, from the first day of the week.
    std::vector<int> columns;
    // Four to six weeks of seven days.
    std::vector<std::vector<Day>> weeks;

    // 1 Sunday … 7 Saturday.
    static int weekday(int year, int month, int day);
    static int daysIn(int year, int month);
};

}  // namespace quorvane
