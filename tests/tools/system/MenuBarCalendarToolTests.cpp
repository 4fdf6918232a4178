#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/DayAgenda.hpp"
#include "tools/system/MenuBarCalendarTool.hpp"

namespace quorvane {
namespace {

using Event = CalendarEvents::Event;
constexpr double kHour = 3600;

std::string hhmm(double date) {
    const auto minutes = static_cast<long>(date / 60);
    char text[8];
    std::snprintf(text, sizeof text, "%02ld:%02ld", minutes / 60 % 24, minutes % 60);
    return text;
}

TEST(DayAgenda, KeepsWhatOverlapsTheDayAndListsWholeDaysFirst) {
    const double day = 10 * 24 * kHour;
    const double next = day + 24 * kHour;
    const std::vector<Event> events{
        {"Review", day + 14 * kHour, day + 15 * kHour, false, "Work"},
        {"Yesterday", day - 2 * kHour, day, false, "Work"},  // ends as the day begins
        {"Tomorrow", next, next + kHour, false, "Work"},
        {"Holiday", day, next, true, "Home"},
        {"Flight", day - 3 * kHour, day + 2 * kHour, false, "Travel"},
        {"Party", day + 22 * kHour, next + 2 * kHour, false, "Home"},
        {"Alarm", day, day, false, "Home"},  // no time, at the first moment: it counts
        {"Conference", day - 24 * kHour, next + 24 * kHour, false, "Work"},
        {"", day + 14 * kHour, day + 14 * kHour, false, "Work"},
    };
    std::vector<std::string> lines;
    for (const auto& event : DayAgenda::onDay(events, day, next)) {
        lines.push_back(DayAgenda::line(event, day, next, hhmm));
    }
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "All day  Conference",
                         "All day  Holiday",
                         "until 02:00  Flight",
                         "00:00  Alarm",
                         "14:00  New Event",
                         "14:00 – 15:00  Review",
                         "from 22:00  Party",
                     }));
}

struct MenuBarCalendarToolTest : ::testing::Test {
    FakePlatform fakes;
    MenuBarCalendarTool tool{catalogDescriptor("menu-bar-calendar"), fakes.platform()};

    FakeMenuBar::Item& item() { return *fakes.menuBar.items.at(0); }
    // 2026-11-24 09:30 UTC, a Tuesday.
    static constexpr double kNow = 817'205'400;
};

TEST_F(MenuBarCalendarToolTest, TheDateInTheMenuBarFollowsTheStyleAndTheDay) {
    fakes.scheduler.setDate(kNow);
    tool.start();
    EXPECT_EQ(item().title, "date(817205400,2,0)");
    tool.setDateStyle(DateFormatting::Style::fullStyle);
    EXPECT_EQ(item().title, "date(817205400,4,0)");
    EXPECT_EQ(fakes.preferences.string(MenuBarCalendarTool::kDateStyleKey), "full");
    fakes.scheduler.setDate(kNow + 24 * kHour);
    fakes.userCalendar.change();
    EXPECT_EQ(item().title, "date(817291800,4,0)");
    tool.stop();
    EXPECT_TRUE(fakes.menuBar.items.empty());
}

TEST_F(MenuBarCalendarToolTest, TheMonthStartsOnTheUsersFirstDayAndOpensOnThisMonth) {
    fakes.scheduler.setDate(kNow);
    fakes.userCalendar.first = 2;  // Monday
    tool.start();
    tool.showMonth(0);
    // November 2026 starts on a Sunday: with Monday first, six columns stay empty.
    EXPECT_EQ(tool.monthText(),
              " Mo  Tu  We  Th  Fr  Sa  Su\n"
              "                          1\n"
              "  2   3   4   5   6   7   8\n"
              "  9  10  11  12  13  14  15\n"
              " 16  17  18  19  20  21  22\n"
              " 23 [24]  25  26  27  28  29\n"
              " 30                        ");
    tool.showMonth(2);
    EXPECT_EQ(std::make_pair(tool.shownYear(), tool.shownMonth()), std::make_pair(2027, 1));
    tool.showMonth(-13);
    EXPECT_EQ(std::make_pair(tool.shownYear(), tool.shownMonth()), std::make_pair(2025, 12));
    EXPECT_NE(SettingsTextRenderer::render(tool.panelPage()).find("December 2025"),
              std::string::npos);
    fakes.menuBar.click();  // opening returns to this month
    EXPECT_EQ(std::make_pair(tool.shownYear(), tool.shownMonth()), std::make_pair(2026, 11));
}

TEST_F(MenuBarCalendarToolTest, EventsAppearOnceTheUserAllowsAccess) {
    fakes.scheduler.setDate(kNow);
    const double today = fakes.userCalendar.startOfDay({2026, 11, 24});
    fakes.calendarEvents.stored = {{"Standup", today + 9 * kHour, today + 10 * kHour, false, "W"},
                                   {"Later", today + 30 * kHour, today + 31 * kHour, false, "W"}};
    tool.start();
    EXPECT_TRUE(tool.todaysEvents().empty());
    EXPECT_NE(SettingsTextRenderer::render(tool.panelPage()).find("Show Calendar Events…"),
              std::string::npos);
    tool.requestAccess();
    fakes.calendarEvents.answer(false);
    EXPECT_EQ(tool.lastError(), std::optional<std::string>("The user denied access."));
    EXPECT_NE(
        SettingsTextRenderer::render(tool.settingsPage()).find(MenuBarCalendarTool::kNoAccess),
        std::string::npos);

    fakes.calendarEvents.access = CalendarEvents::Access::fullAccess;
    EXPECT_EQ(tool.todaysEvents(),
              (std::vector<std::string>{
                  "date(" + std::to_string(static_cast<long>(today + 9 * kHour)) + ",0,1) – date(" +
                  std::to_string(static_cast<long>(today + 10 * kHour)) + ",0,1)  Standup"}));
    tool.setShowsEvents(false);
    EXPECT_TRUE(tool.todaysEvents().empty());

    // An answer that comes after the tool is gone reaches nobody.
    {
        MenuBarCalendarTool gone{catalogDescriptor("menu-bar-calendar"), fakes.platform()};
        gone.requestAccess();
    }
    fakes.calendarEvents.answer(true);
}

}  // namespace
}  // namespace quorvane
