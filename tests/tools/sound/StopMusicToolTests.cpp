#include "tools/sound/StopMusicTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/sound/MusicLaunchRule.hpp"

namespace quorvane {
namespace {

struct StopMusicToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<StopMusicTool> tool;

    void SetUp() override {
        tool = std::make_unique<StopMusicTool>(catalogDescriptor("stop-music"), fakes.platform());
        tool->start();
        fakes.scheduler.advance(Seconds{60});  // well past any earlier action
    }
    void launch(int pid, std::string bundleID) {
        RunningApplication app;
        app.pid = pid;
        app.bundleID = std::move(bundleID);
        app.launchDate = fakes.scheduler.date();
        fakes.workspace.applications[pid] = app;
        fakes.workspace.post(WorkspaceNotification::didLaunchApplication, &app);
    }
    void click() {
        FakeEvent event;
        event.eventType = EventType::leftMouseDown;
        fakes.eventMonitors.send(event);
    }
};

TEST_F(StopMusicToolTest, MusicOpeningByItselfIsQuitButOtherAppsAreNot) {
    launch(20, "com.apple.Music");
    launch(21, "com.apple.TV");
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{20});
    EXPECT_EQ(tool->stoppedCount(), 1);
    EXPECT_EQ(fakes.preferences.integer(StopMusicTool::kStoppedCountKey), 1);
}

TEST_F(StopMusicToolTest, ALaunchByTheUserWithinTheGracePeriodIsAllowed) {
    click();
    fakes.scheduler.advance(Seconds{MusicLaunchRule::kGraceSeconds - 0.5});
    launch(20, "com.apple.Music");
    EXPECT_TRUE(fakes.workspace.terminated.empty());

    fakes.scheduler.advance(Seconds{MusicLaunchRule::kGraceSeconds + 1});
    launch(22, "com.apple.Music");
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{22}) << "the click is too old now";
}

TEST_F(StopMusicToolTest, AStoppedToolLeavesMusicAloneAndARefusalIsShown) {
    tool->stop();
    launch(20, "com.apple.Music");
    EXPECT_TRUE(fakes.workspace.terminated.empty());

    tool->start();
    fakes.scheduler.advance(Seconds{60});
    RunningApplication gone;
    gone.pid = 99;
    gone.bundleID = "com.apple.Music";
    // Gone before it could be asked to quit: terminate answers false.
    fakes.workspace.post(WorkspaceNotification::didLaunchApplication, &gone);
    EXPECT_EQ(tool->lastError(), "Couldn't quit Music after it opened by itself");
}

}  // namespace
}  // namespace quorvane
