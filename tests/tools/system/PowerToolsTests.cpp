#include <gtest/gtest.h>

#include "app/SystemPreference.hpp"
#include "app/ToolCatalog.hpp"
#include "app/ToolRegistry.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/KeepAwakePlan.hpp"
#include "tools/system/KeepAwakeTool.hpp"
#include "tools/system/LockScreenTool.hpp"
#include "tools/system/PresentationModeTool.hpp"

namespace quorvane {
namespace {

using Type = PowerManagement::AssertionType;
using namespace std::chrono_literals;

struct KeepAwakeToolTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("keep-awake");
    std::vector<std::optional<std::string>> turnedOff;
    Subscription observer = fakes.notifications.observe(
        ToolRegistry::kTurnedItselfOff,
        [this](const std::optional<std::string>& id) { turnedOff.push_back(id); });
};

TEST_F(KeepAwakeToolTest, HoldsOneAssertionWhileOnAndReleasesItOnStop) {
    KeepAwakeTool tool{descriptor, fakes.platform()};
    tool.start();
    tool.start();
    ASSERT_EQ(fakes.power.held.size(), 1u);
    EXPECT_EQ(fakes.power.held.begin()->second.type, Type::preventUserIdleDisplaySleep);
    EXPECT_TRUE(tool.isKeepingAwake());
    EXPECT_FALSE(tool.remaining()) << "until turned off by default";

    // Changing what to keep awake swaps the assertion rather than adding one.
    tool.setKeepsDisplayOn(false);
    ASSERT_EQ(fakes.power.held.size(), 1u);
    EXPECT_EQ(fakes.power.held.begin()->second.type, Type::preventUserIdleSystemSleep);

    tool.stop();
    tool.stop();
    EXPECT_TRUE(fakes.power.held.empty());
    EXPECT_EQ(fakes.power.releasesOfUnknown, 0);
    EXPECT_EQ(fakes.preferences.boolean(KeepAwakeTool::kDisplayKey), false);
}

TEST_F(KeepAwakeToolTest, ATimedSessionReleasesAtItsEndAndTurnsTheToolOff) {
    fakes.preferences.set(KeepAwakeTool::kMinutesKey, 60);
    KeepAwakeTool tool{descriptor, fakes.platform()};
    tool.start();
    fakes.scheduler.advance(59min);
    EXPECT_EQ(fakes.power.held.size(), 1u);
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("1 min left"),
              std::string::npos);
    fakes.scheduler.advance(1min);
    EXPECT_TRUE(fakes.power.held.empty());
    EXPECT_EQ(turnedOff, (std::vector<std::optional<std::string>>{"keep-awake"}));
    tool.stop();  // what the registry does next
    EXPECT_EQ(fakes.power.releasesOfUnknown, 0);

    // A new time restarts the count from the moment it is chosen.
    tool.start();
    fakes.scheduler.advance(50min);
    tool.setMinutes(15);
    fakes.scheduler.advance(14min);
    EXPECT_EQ(fakes.power.held.size(), 1u);
    fakes.scheduler.advance(1min);
    EXPECT_TRUE(fakes.power.held.empty());
}

TEST_F(KeepAwakeToolTest, ARefusedAssertionIsShownAndNothingIsLeftToRelease) {
    fakes.power.createStatus = static_cast<int>(0xE00002C7);
    KeepAwakeTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_FALSE(tool.isKeepingAwake());
    ASSERT_TRUE(tool.lastError());
    EXPECT_EQ(*tool.lastError(), "Keeping the Mac awake failed (IOReturn 0xE00002C7)");
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("0xE00002C7"),
              std::string::npos);
    tool.stop();
    EXPECT_EQ(fakes.power.releasesOfUnknown, 0);
    EXPECT_FALSE(tool.lastError());
}

TEST(KeepAwakePlan, StoredChoicesAndTimeLeft) {
    EXPECT_EQ(KeepAwakePlan::validMinutes(120), 120);
    EXPECT_EQ(KeepAwakePlan::validMinutes(7), 0) << "not a choice on the page";
    EXPECT_EQ(KeepAwakePlan::validMinutes(std::nullopt), 0);
    EXPECT_EQ(KeepAwakePlan::durationTitle(0), "Until turned off");
    EXPECT_EQ(KeepAwakePlan::durationTitle(60), "1 hour");
    EXPECT_EQ(KeepAwakePlan::durationTitle(300), "5 hours");
    EXPECT_EQ(KeepAwakePlan::remainingText(Seconds{125 * 60}), "2 h 05 min left");
    EXPECT_EQ(KeepAwakePlan::remainingText(Seconds{61}), "2 min left");
    EXPECT_EQ(KeepAwakePlan::remainingText(Seconds{0}), "less than a minute left");
}

struct LockScreenToolTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("lock-screen");
    LockScreenTool tool{descriptor, fakes.platform()};
};

TEST_F(LockScreenToolTest, EachActionCallsItsMechanismAndShowsItsFailure) {
    using Action = LockScreenTool::Action;
    tool.control()->action();
    EXPECT_EQ(fakes.power.locks, 1);
    tool.perform(Action::sleep);
    tool.perform(Action::displayOff);
    EXPECT_EQ(fakes.childProcesses.runs,
              (std::vector<FakeChildProcesses::Run>{{"/usr/bin/pmset", {"sleepnow"}},
                                                    {"/usr/bin/pmset", {"displaysleepnow"}}}));
    EXPECT_FALSE(tool.lastError());

    fakes.childProcesses.results["/usr/bin/pmset"] = ChildProcessStatus::exited(1);
    tool.perform(Action::sleep);
    EXPECT_EQ(tool.lastError(), "Putting the Mac to sleep failed: pmset ended with status 1");
    fakes.power.lockStatus = PowerManagement::kUnsupported;
    tool.perform(Action::lock);
    ASSERT_TRUE(tool.lastError());
    EXPECT_NE(tool.lastError()->find("no way for apps to lock"), std::string::npos);
    fakes.power.lockStatus = 0;
    tool.perform(Action::lock);
    EXPECT_FALSE(tool.lastError()) << "a success clears the old failure";
}

TEST_F(LockScreenToolTest, ShortcutsAreRegisteredOnlyWhileOn) {
    // ⌃⌘L: control 0x1000 plus command 0x100 for the hot-key system.
    tool.shortcut(LockScreenTool::Action::lock).set(KeyCombo{37, 0x140000, "L"});
    EXPECT_FALSE(fakes.hotKeys.press(37, 0x1100));
    tool.start();
    EXPECT_TRUE(fakes.hotKeys.press(37, 0x1100));
    EXPECT_EQ(fakes.power.locks, 1);
    tool.stop();
    EXPECT_FALSE(fakes.hotKeys.press(37, 0x1100));
    EXPECT_EQ(fakes.power.locks, 1);
}

struct PresentationModeTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("presentation-mode");
    std::optional<PreferenceValue> desktop() {
        return fakes.preferenceDomains.stored("CreateDesktop", "com.apple.finder");
    }
};

TEST_F(PresentationModeTest, KeepsAwakeHidesIconsRunsShortcutsAndPutsItAllBack) {
    fakes.preferenceDomains.store("CreateDesktop", true, "com.apple.finder");
    PresentationModeTool tool{descriptor, fakes.platform()};
    tool.setStartShortcut("Focus On");
    tool.setEndShortcut("Focus Off");
    tool.start();
    EXPECT_EQ(fakes.power.held.size(), 1u);
    EXPECT_EQ(desktop(), PreferenceValue(false));
    EXPECT_EQ(tool.runningShortcut(), "Focus On");
    ASSERT_TRUE(fakes.childProcesses.finish());
    EXPECT_FALSE(tool.runningShortcut());
    tool.stop();
    ASSERT_TRUE(fakes.childProcesses.finish());
    EXPECT_FALSE(tool.lastError());
    EXPECT_TRUE(fakes.power.held.empty());
    EXPECT_EQ(desktop(), PreferenceValue(true)) << "the user's own value, exactly";
    EXPECT_EQ(fakes.childProcesses.runs,
              (std::vector<FakeChildProcesses::Run>{{"/usr/bin/killall", {"Finder"}},
                                                    {"/usr/bin/shortcuts", {"run", "Focus On"}},
                                                    {"/usr/bin/killall", {"Finder"}},
                                                    {"/usr/bin/shortcuts", {"run", "Focus Off"}}}));
    EXPECT_FALSE(fakes.preferences.boolean(PresentationModeTool::kHidingKey));
}

TEST_F(PresentationModeTest, AShortcutStillRunningIsShownAndTheOtherHalfStopsIt) {
    auto& processes = fakes.childProcesses;
    PresentationModeTool tool{descriptor, fakes.platform()};
    tool.setStartShortcut("Focus On");
    tool.setEndShortcut("Focus Off");
    tool.start();
    EXPECT_NE(
        SettingsTextRenderer::render(tool.settingsPage()).find("Running the Shortcut \"Focus On\""),
        std::string::npos);
    // Ended before the start Shortcut did: it is stopped, and only the end one runs on.
    tool.stop();
    EXPECT_TRUE(processes.started.at(0)->cancelled);
    EXPECT_EQ(tool.runningShortcut(), "Focus Off");
    ASSERT_TRUE(processes.finish(ChildProcessStatus::exited(1)));
    EXPECT_EQ(tool.lastError().value_or(""),
              "The Shortcut \"Focus Off\" did not run: shortcuts ended with status 1");
    EXPECT_EQ(processes.going(), 0u);

    tool.start();
    tool.stop();
    tool.start();
    EXPECT_TRUE(processes.started.at(3)->cancelled) << "the end Shortcut, cut short";
    EXPECT_EQ(processes.going(), 1u);
    EXPECT_FALSE(tool.lastError()) << "a Shortcut that was stopped did not fail";
}

TEST_F(PresentationModeTest, ACrashWhilePresentingIsUndoneAtTheNextLaunch) {
    // What a run that crashed while presenting leaves behind: the hidden icons with the record
    // of the user's value (absent), and the tool's marker.
    SystemPreference::set(fakes.platform(), "CreateDesktop", false,
                          SystemPreferenceDomain::app("com.apple.finder"));
    fakes.preferences.set(PresentationModeTool::kHidingKey, true);
    PresentationModeTool tool{descriptor, fakes.platform()};
    tool.tidy();
    EXPECT_FALSE(desktop()) << "absent before, absent again";
    EXPECT_FALSE(fakes.preferences.boolean(PresentationModeTool::kHidingKey));
}

TEST_F(PresentationModeTest, IconsHiddenByTheirOwnToolStayHiddenAfterThePresentation) {
    auto hider = ToolCatalog::makeTools(fakes.platform());
    Tool* hideIcons = nullptr;
    for (auto& tool : hider) {
        if (tool->id() == "hide-desktop-icons") {
            hideIcons = tool.get();
        }
    }
    ASSERT_NE(hideIcons, nullptr);
    hideIcons->start();
    PresentationModeTool tool{descriptor, fakes.platform()};
    tool.start();
    tool.stop();
    EXPECT_EQ(desktop(), PreferenceValue(false));
}

TEST_F(PresentationModeTest, AShortcutThatFailsIsShown) {
    fakes.power.createStatus = 1;
    PresentationModeTool tool{descriptor, fakes.platform()};
    tool.setStartShortcut("Missing");
    tool.start();
    ASSERT_TRUE(fakes.childProcesses.finish(ChildProcessStatus::exited(1)));
    ASSERT_TRUE(tool.lastError());
    EXPECT_EQ(*tool.lastError(), "Keeping the Mac awake failed (IOReturn 0x00000001)")
        << "the first failure is the one shown";
    tool.stop();
}

}  // namespace
}  // namespace quorvane
