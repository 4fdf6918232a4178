#include <gtest/gtest.h>

#include "tools/windows/DimFollower.hpp"
#include "tools/windows/LastWindowRule.hpp"
#include "tools/windows/WindowSwitcherEngine.hpp"
#include "tools/windows/ZoomToggle.hpp"

namespace quorvane {
namespace {

using Verdict = LastWindowRule::Verdict;

LastWindowRule::App closedLastWindow(std::string bundleID) {
    LastWindowRule::App app;
    app.bundleID = std::move(bundleID);
    app.windowsKnown = true;
    app.windowCount = 0;
    app.userClosedIt = true;
    return app;
}

TEST(WindowDecisions, OnlyAUserClosingTheLastWindowQuitsAnOrdinaryApp) {
    const std::vector<std::string> excepted = {"com.example.music"};
    EXPECT_EQ(LastWindowRule::decide(closedLastWindow("com.example.mail"), excepted),
              Verdict::quit);
    EXPECT_EQ(LastWindowRule::decide(closedLastWindow("com.apple.finder"), excepted),
              Verdict::excepted);
    EXPECT_EQ(LastWindowRule::decide(closedLastWindow("com.example.music"), excepted),
              Verdict::excepted);

    auto minimized = closedLastWindow("com.example.mail");
    minimized.windowCount = 1;  // the one left is minimized: still open
    EXPECT_EQ(LastWindowRule::decide(minimized, excepted), Verdict::hasWindows);
    auto silent = closedLastWindow("com.example.mail");
    silent.windowsKnown = false;
    EXPECT_EQ(LastWindowRule::decide(silent, excepted), Verdict::unknown);
    auto byItself = closedLastWindow("com.example.mail");
    byItself.userClosedIt = false;
    EXPECT_EQ(LastWindowRule::decide(byItself, excepted), Verdict::notByUser);
    auto agent = closedLastWindow("com.example.helper");
    agent.isRegular = false;
    EXPECT_EQ(LastWindowRule::decide(agent, excepted), Verdict::excepted);
    auto own = closedLastWindow("com.quorvane.app");
    own.isOwnProcess = true;
    EXPECT_EQ(LastWindowRule::decide(own, excepted), Verdict::excepted);
}

TEST(WindowDecisions, TheGreenButtonFillsThenRestores) {
    const Rect area(0, 25, 1440, 875);
    ZoomToggle zoom;
    const Rect original(100, 100, 600, 400);
    EXPECT_EQ(zoom.click(7, "Doc", original, area), area);
    EXPECT_EQ(zoom.click(7, "Other", original, area), area) << "another window, its own memory";
    EXPECT_EQ(zoom.click(7, "Doc", {0, 25, 1440, 874}, area), original)
        << "the second click restores, even if the app kept a point off";
    EXPECT_EQ(zoom.click(7, "Doc", area, area), std::nullopt)
        << "already filled, with nothing to go back to";

    // Filled, then moved by hand: the next click fills again rather than jumping back.
    EXPECT_EQ(zoom.click(8, "", original, area), area);
    EXPECT_EQ(zoom.click(8, "", {300, 300, 500, 500}, area), area);
    EXPECT_EQ(zoom.click(8, "", area, area), (Rect{300, 300, 500, 500}));

    zoom.forget(7);
    EXPECT_EQ(zoom.remembered(), 0u);

    const std::vector<WindowInfo> windows = {{1, 50, 25, {0, 0, 1440, 25}},  // the menu bar
                                             {2, 40, 0, {100, 100, 600, 400}},
                                             {3, 41, 0, {0, 0, 1440, 900}}};
    EXPECT_TRUE(ZoomToggle::inButtonCorner({150, 110}, windows));
    EXPECT_FALSE(ZoomToggle::inButtonCorner({400, 110}, windows)) << "the title's middle";
    EXPECT_FALSE(ZoomToggle::inButtonCorner({20, 10}, windows)) << "under the menu bar";
    EXPECT_TRUE(ZoomToggle::inButtonCorner({20, 30}, windows)) << "the big window behind";
}

TEST(WindowDecisions, DimmingReordersOncePerChangeOfFocusedWindow) {
    const std::vector<WindowInfo> windows = {{10, 5, 0, {0, 0, 300, 300}},
                                             {11, 5, 0, {400, 0, 300, 300}},
                                             {12, 5, 3, {0, 0, 50, 50}},  // a floating palette
                                             {20, 6, 0, {0, 0, 800, 600}}};
    EXPECT_EQ(DimFollower::target(5, Rect(400, 0, 300, 300), windows), 11u);
    EXPECT_EQ(DimFollower::target(5, std::nullopt, windows), 10u) << "else its front window";
    EXPECT_EQ(DimFollower::target(9, std::nullopt, windows), std::nullopt);

    using Step = DimFollower::Step;
    DimFollower follower;
    EXPECT_EQ(follower.focusChanged(10), (DimFollower::Outcome{Step::reorder, 10}));
    EXPECT_EQ(follower.focusChanged(10), DimFollower::Outcome{}) << "the same burst";
    EXPECT_EQ(follower.focusChanged(20), (DimFollower::Outcome{Step::reorder, 20}));
    EXPECT_EQ(follower.focusChanged(std::nullopt), (DimFollower::Outcome{Step::hide, 0}));
    EXPECT_EQ(follower.focusChanged(std::nullopt), DimFollower::Outcome{});
    EXPECT_EQ(follower.focusChanged(20), (DimFollower::Outcome{Step::reorder, 20}))
        << "shown again under the same window after the desktop";
}

// Going round both ways and switching on release are checked with the tool's keys.
TEST(WindowDecisions, TheSwitcherNeedsAWindowSaysWhereItIsAndCommitsOnce) {
    WindowSwitcherEngine engine;
    EXPECT_FALSE(engine.open({})) << "nothing to switch to";
    ASSERT_TRUE(engine.open({{"Mail", "Inbox"}, {"Editor", ""}, {"Notes", "Today"}}));
    EXPECT_EQ(engine.caption(), "Editor\n2 of 3 · let go to switch, Esc to stay");
    engine.step(-1);
    engine.step(-1);
    EXPECT_EQ(engine.commit(), 2u);
    EXPECT_EQ(engine.commit(), std::nullopt) << "closed";
    ASSERT_TRUE(engine.open({{"Mail", "Inbox"}}));
    EXPECT_EQ(engine.selected(), 0u) << "a single window is its own pick";
}

}  // namespace
}  // namespace quorvane
