#include "input/UserActionMonitor.hpp"

#include <gtest/gtest.h>

#include "input/InputServices.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

struct UserActionMonitorTest : ::testing::Test {
    FakePlatform fakes;
    UserActionMonitor monitor{fakes.platform()};
    double now() const { return fakes.scheduler.date(); }
};

TEST_F(UserActionMonitorTest, KeepsTheLatestFortyActions) {
    const double first = now();
    for (int i = 0; i < 41; ++i) {
        monitor.record();
        fakes.scheduler.advance(Seconds(1));
    }
    ASSERT_EQ(monitor.recentActions().size(), 40u);
    EXPECT_EQ(monitor.recentActions().front(), first + 1) << "the 41st pushed the first out";
    EXPECT_EQ(monitor.lastAction(), first + 40);
    EXPECT_FALSE(monitor.happened(first, first + 0.5));
}

TEST_F(UserActionMonitorTest, HappenedIncludesBothEndsAndQuorvanesOwnMark) {
    const double t = now();
    EXPECT_FALSE(monitor.happened(t - 100, t + 100));
    monitor.record();
    EXPECT_TRUE(monitor.happened(t, t + 5));
    EXPECT_TRUE(monitor.happened(t - 5, t));
    EXPECT_FALSE(monitor.happened(t + 0.001, t + 5));

    fakes.input.userActionMark.date = t + 10;  // window drag brought a window forward
    EXPECT_TRUE(monitor.happened(t + 10, t + 12));
    EXPECT_FALSE(monitor.happened(t + 11, t + 12));
}

TEST_F(UserActionMonitorTest, ClicksKeysAndSystemEventsCountUntilStopped) {
    monitor.start();
    monitor.start();
    ASSERT_EQ(fakes.eventMonitors.monitors.size(), 2u);
    EXPECT_EQ(fakes.eventMonitors.monitors[0]->mask, 0x200040Au);

    FakeEvent click;
    click.eventType = EventType::otherMouseDown;
    EXPECT_TRUE(fakes.eventMonitors.send(click)) << "the local monitor lets events through";
    EXPECT_EQ(monitor.recentActions().size(), 2u) << "seen globally and locally";
    fakes.workspace.post(WorkspaceNotification::activeSpaceDidChange);
    fakes.workspace.post(WorkspaceNotification::screensDidWake);
    fakes.workspace.post(WorkspaceNotification::didActivateApplication);
    fakes.workspace.distributed["com.apple.screenIsUnlocked"].call();
    EXPECT_EQ(monitor.recentActions().size(), 5u);

    monitor.stop();
    EXPECT_TRUE(fakes.eventMonitors.monitors.empty());
    fakes.workspace.post(WorkspaceNotification::screensDidWake);
    EXPECT_EQ(monitor.recentActions().size(), 5u);
}

TEST_F(UserActionMonitorTest, IdleTimeIsTheShortestOfClicksAndGesturesButNotKeys) {
    fakes.events.idleSeconds = {{EventType::leftMouseDown, 30},
                                {EventType::rightMouseDown, 12},
                                {EventType::otherMouseDown, 50},
                                {EventType::gesture, 20},
                                {EventType::keyDown, 1}};
    EXPECT_EQ(monitor.secondsSinceLastInput(), 12);
}

}  // namespace
}  // namespace quorvane
