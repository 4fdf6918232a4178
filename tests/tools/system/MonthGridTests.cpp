#include "tools/system/MonthGrid.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

constexpr int kSunday = 1;
constexpr int kMonday = 2;
constexpr int kSaturday = 7;

TEST(MonthGrid, KnowsTheWeekdayOfAnyDate) {
    EXPECT_EQ(MonthGrid::weekday(1970, 1, 1), 5);
    EXPECT_EQ(MonthGrid::weekday(2000, 2, 29), 3);  // a Tuesday
    EXPECT_EQ(MonthGrid::weekday(2026, 11, 24), 3);
    EXPECT_EQ(MonthGrid::weekday(1969, 12, 31), 4);
    EXPECT_EQ(MonthGrid::daysIn(2024, 2), 29);
    EXPECT_EQ(MonthGrid::daysIn(1900, 2), 28);
    EXPECT_EQ(MonthGrid::daysIn(2000, 2), 29);
}

TEST(MonthGrid, EveryMonthStartsInItsColumnForEveryFirstDayOfWeek) {
    // 2026 and 2027 hold months starting on each of the seven weekdays.
    for (int firstWeekday = 1; firstWeekday <= 7; ++firstWeekday) {
        for (int year : {2026, 2027}) {
            for (int month = 1; month <= 12; ++month) {
                SCOPED_TRACE(std::to_string(firstWeekday) + " " + std::to_string(year) + "-" +
                             std::to_string(month));
                const auto grid = MonthGrid::make(year, month, firstWeekday, {});
                ASSERT_EQ(grid.columns.front(), firstWeekday);
                ASSERT_GE(grid.weeks.size(), 4u);
                ASSERT_LE(grid.weeks.size(), 6u);
                int inMonth = 0;
                for (const auto& week : grid.weeks) {
                    ASSERT_EQ(week.size(), 7u);
                    for (std::size_t column = 0; column < 7; ++column) {
                        const auto& day = week[column];
                        // Each cell sits under its own weekday, neighbours' days included.
                        EXPECT_EQ(MonthGrid::weekday(day.year, day.month, day.day),
                                  grid.columns[column]);
                        inMonth += day.inMonth;
                    }
                }
                EXPECT_EQ(inMonth, MonthGrid::daysIn(year, month));
                EXPECT_TRUE(grid.weeks.front().front().day == 1 ||
                            !grid.weeks.front().front().inMonth);
                EXPECT_TRUE(grid.weeks.back().back().inMonth == false ||
                            grid.weeks.back().back().day == MonthGrid::daysIn(year, month));
            }
        }
    }
}

TEST(MonthGrid, FillsFromTheNeighbouringMonthsAcrossTheYearAndMarksToday) {
    // January 2027 starts on a Friday; with Monday first, Dec 28–31 2026 come before it.
    const auto grid = MonthGrid::make(2027, 1, kMonday, {2026, 12, 31});
    EXPECT_EQ(grid.columns, (std::vector<int>{2, 3, 4, 5, 6, 7, 1}));
    EXPECT_EQ(grid.weeks.front().front(), (MonthGrid::Day{2026, 12, 28, false, false}));
    EXPECT_TRUE(grid.weeks.front()[3].isToday);
    EXPECT_EQ(grid.weeks.front()[4], (MonthGrid::Day{2027, 1, 1, true, false}));
    EXPECT_EQ(grid.weeks.back().back(), (MonthGrid::Day{2027, 1, 31, true, false}));
    // And December 2026 ends on a Thursday, so its last week runs into 2027.
    EXPECT_EQ(MonthGrid::make(2026, 12, kMonday, {}).weeks.back().back(),
              (MonthGrid::Day{2027, 1, 3, false, false}));
    // February 2026 starts on a Sunday and has 28 days: exactly four weeks with Sunday first.
    EXPECT_EQ(MonthGrid::make(2026, 2, kSunday, {}).weeks.size(), 4u);
    // May 2027 starts on a Saturday: with Sunday first it needs six weeks.
    EXPECT_EQ(MonthGrid::make(2027, 5, kSunday, {}).weeks.size(), 6u);
    EXPECT_EQ(MonthGrid::make(2027, 5, kSaturday, {}).weeks.size(), 5u);
    EXPECT_EQ(MonthGrid::make(2027, 5, 0, {}).columns.front(), kSunday) << "bad input: Sunday";
}

}  // namespace
}  // namespace quorvane
