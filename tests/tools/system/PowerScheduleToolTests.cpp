#include <gtest/gtest.h>

#include <algorithm>

#include "app/AdministratorCommand.hpp"
#include "app/ToolRegistry.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/PowerScheduleTool.hpp"

namespace quorvane {
namespace {

using Words = std::vector<std::string>;
using Event = RepeatingPowerEvents::Event;

TEST(PowerSchedule, TheScheduleAsPmsetArgumentsAndAsText) {
    PowerSchedule schedule;
    EXPECT_EQ(PowerSchedule::pmsetArguments(schedule.events()), (Words{"repeat", "cancel"}));
    EXPECT_EQ(PowerSchedule::describe(schedule.events()), "No schedule.");

    schedule.wake = true;
    schedule.wakeMinutes = 7 * 60 + 5;
    schedule.stop = PowerSchedule::Stop::shutdown;
    schedule.stopDays = 1 | 4 | 64;
    schedule.stopMinutes = 23 * 60 + 30;
    EXPECT_EQ(
        PowerSchedule::pmsetArguments(schedule.events()),
        (Words{"repeat", "wakeorpoweron", "MTWRF", "07:05:00", "shutdown", "MWU", "23:30:00"}));
    EXPECT_EQ(PowerSchedule::describe(schedule.events()),
              "Starts or wakes at 07:05 on weekdays. Shuts down at 23:30 on Mondays, "
              "Wednesdays, Sundays.");
    // A schedule set elsewhere, with only a stop.
    EXPECT_EQ(PowerSchedule::pmsetArguments({std::nullopt, Event{"sleep", 0, 0x60}}),
              (Words{"repeat", "sleep", "SU", "00:00:00"}));

    EXPECT_EQ(PowerSchedule::parseTime("7:30"), 450);
    EXPECT_EQ(PowerSchedule::parseTime("23:59"), 23 * 60 + 59);
    for (const char* bad : {"24:00", "7:60", "730", "7:3", ":30", "07:30 ", "ab:cd", ""}) {
        EXPECT_FALSE(PowerSchedule::parseTime(bad)) << bad;
    }
    EXPECT_EQ(PowerSchedule::validDays(0, 31), 31);
    EXPECT_EQ(PowerSchedule::validDays(200, 31), 31);
    EXPECT_EQ(PowerSchedule::validDays(96, 31), 96);
}

struct PowerScheduleToolTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("power-schedule");
    // The user's own schedule before Quorvane: sleep at 22:00 every day.
    RepeatingPowerEvents theirs{std::nullopt, Event{"sleep", 22 * 60, 0x7F}};

    // What ran through the authorisation prompt, as pmset's arguments.
    std::vector<std::string> pmsetRuns() const {
        std::vector<std::string> runs;
        for (const auto& run : fakes.childProcesses.runs) {
            EXPECT_EQ(run.executablePath, "/usr/bin/osascript");
            runs.push_back(run.arguments.at(1));
        }
        return runs;
    }
    static std::string prompt(const std::string& pmset) {
        std::vector<std::string> words;
        for (std::size_t at = 0; at < pmset.size();) {
            const std::size_t end = std::min(pmset.find(' ', at), pmset.size());
            words.push_back(pmset.substr(at, end - at));
            at = end + 1;
        }
        return AdministratorCommand::osascriptArguments(PowerScheduleTool::kPmset, words,
                                                        PowerScheduleTool::kPromptReason)[1];
    }
};

TEST_F(PowerScheduleToolTest, SetsTheScheduleAndPutsTheUsersOwnBackWhenTurnedOff) {
    auto& processes = fakes.childProcesses;
    fakes.power.repeating = theirs;
    PowerScheduleTool tool{descriptor, fakes.platform()};
    PowerSchedule schedule;
    schedule.wake = true;
    tool.setSchedule(schedule);
    EXPECT_TRUE(processes.runs.empty()) << "nothing is changed while off";
    fakes.preferences.set(ToolRegistry::enabledKey("power-schedule"), true);
    tool.start();
    EXPECT_EQ(pmsetRuns(), (Words{prompt("repeat wakeorpoweron MTWRF 08:00:00")}));
    ASSERT_TRUE(processes.finish());
    fakes.power.repeating = schedule.events();  // what pmset did

    // An edit while on is handed over at once; one that changes nothing asks for nothing.
    schedule.stop = PowerSchedule::Stop::sleep;
    tool.setSchedule(schedule);
    tool.setSchedule(schedule);
    EXPECT_EQ(pmsetRuns().size(), 2u);
    EXPECT_EQ(pmsetRuns().back(),
              prompt("repeat wakeorpoweron MTWRF 08:00:00 sleep MTWRFSU 23:00:00"));
    ASSERT_TRUE(processes.finish());
    fakes.power.repeating = schedule.events();

    // Quitting keeps the schedule; turning the tool off restores the user's.
    tool.stop();
    EXPECT_EQ(pmsetRuns().size(), 2u);
    tool.start();
    fakes.preferences.set(ToolRegistry::enabledKey("power-schedule"), false);
    tool.stop();
    EXPECT_EQ(pmsetRuns().back(), prompt("repeat sleep MTWRFSU 22:00:00"));
    EXPECT_TRUE(fakes.preferences.string(PowerScheduleTool::kOriginalKey)) << "until answered";
    ASSERT_TRUE(processes.finish());
    EXPECT_FALSE(fakes.preferences.string(PowerScheduleTool::kOriginalKey));
    EXPECT_FALSE(tool.lastError());
    PowerScheduleTool reread{descriptor, fakes.platform()};
    EXPECT_EQ(reread.schedule().events(), schedule.events());
}

TEST_F(PowerScheduleToolTest, ACancelledPasswordIsShownAndTheRestoreIsTriedAgainAtLaunch) {
    auto& processes = fakes.childProcesses;
    PowerSchedule schedule;
    schedule.stop = PowerSchedule::Stop::restart;
    fakes.preferences.set(PowerScheduleTool::kStopKey, "restart");
    {
        PowerScheduleTool tool{descriptor, fakes.platform()};
        tool.start();
        ASSERT_TRUE(processes.finish(ChildProcessStatus::exited(1)));
        ASSERT_TRUE(tool.lastError());
        EXPECT_NE(tool.lastError()->find("osascript ended with status 1"), std::string::npos);
        EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("No schedule."),
                  std::string::npos);
        fakes.power.repeating = schedule.events();  // say the second try went through
        tool.stop();
        ASSERT_TRUE(processes.finish(ChildProcessStatus::exited(1)));
        ASSERT_TRUE(tool.lastError());
        EXPECT_NE(tool.lastError()->find("tries again"), std::string::npos);
    }
    processes.runs.clear();
    PowerScheduleTool next{descriptor, fakes.platform()};
    next.tidy();
    next.tidy();
    EXPECT_EQ(pmsetRuns(), (Words{prompt("repeat cancel")})) << "one window at a time";
    ASSERT_TRUE(processes.finish());
    next.tidy();
    EXPECT_EQ(pmsetRuns().size(), 1u);
}

TEST_F(PowerScheduleToolTest, WhileTheWindowIsUpEditsAreRefusedAndTurningOffClosesIt) {
    auto& processes = fakes.childProcesses;
    fakes.power.repeating = theirs;
    fakes.preferences.set(PowerScheduleTool::kWakeKey, true);
    PowerScheduleTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_TRUE(tool.isWaiting());
    EXPECT_NE(
        SettingsTextRenderer::render(tool.settingsPage()).find(AdministratorCommand::kWaitingNote),
        std::string::npos);
    PowerSchedule edit = tool.schedule();
    edit.wakeMinutes = 6 * 60;
    tool.setSchedule(edit);
    EXPECT_EQ(tool.schedule().wakeMinutes, 8 * 60);
    EXPECT_NE(tool.lastError().value_or("").find("still waiting"), std::string::npos);
    EXPECT_EQ(processes.runs.size(), 1u);

    // Off before the answer: the window closes, and the user's schedule, never changed,
    // needs no second one.
    tool.stop();
    EXPECT_TRUE(processes.started.at(0)->cancelled);
    EXPECT_EQ(processes.going(), 0u);
    EXPECT_FALSE(tool.isWaiting());
    EXPECT_FALSE(fakes.preferences.string(PowerScheduleTool::kOriginalKey));

    // Quitting while the window is up closes it as well, and keeps the record for next time.
    fakes.preferences.set(ToolRegistry::enabledKey("power-schedule"), true);
    tool.start();
    tool.stop();
    EXPECT_TRUE(processes.started.at(1)->cancelled);
    EXPECT_EQ(processes.going(), 0u);
    EXPECT_TRUE(fakes.preferences.string(PowerScheduleTool::kOriginalKey));
}

TEST_F(PowerScheduleToolTest, ATimeThatIsNoTimeIsRefusedOnThePage) {
    fakes.preferences.set(PowerScheduleTool::kWakeKey, true);
    fakes.preferences.set(PowerScheduleTool::kWakeTimeKey, 9999);  // corrupt: the default
    PowerScheduleTool tool{descriptor, fakes.platform()};
    EXPECT_EQ(tool.schedule().wakeMinutes, 8 * 60);
    auto page = tool.settingsPage();
    auto& field = std::get<SettingsRow::TextField>(page.sections[0].rows[2].kind);
    field.set("8h");
    EXPECT_EQ(tool.schedule().wakeMinutes, 8 * 60);
    ASSERT_TRUE(tool.lastError());
    EXPECT_NE(tool.lastError()->find("“8h” is not a time of day"), std::string::npos);
    field.set("06:45");
    EXPECT_EQ(fakes.preferences.integer(PowerScheduleTool::kWakeTimeKey), 6 * 60 + 45);
}

}  // namespace
}  // namespace quorvane
