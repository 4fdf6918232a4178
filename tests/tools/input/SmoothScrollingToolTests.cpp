#include "tools/input/SmoothScrollingTool.hpp"

#include <gtest/gtest.h>

#include "app/ToolRegistry.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/input/ScrollDirectionTool.hpp"
#include "tools/input/ScrollTapDispatch.hpp"

namespace quorvane {
namespace {

struct SmoothScrollingToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<SmoothScrollingTool> tool;

    void SetUp() override {
        fakes.workspace.add(10, "com.example.browser", "Browser").bundleURL =
            "file:///Applications/Browser.app/";
        fakes.workspace.add(20, "com.googlecode.iterm2", "iTerm");
        fakes.workspace.add(30, "com.example.shooter", "Shooter").bundleURL =
            "file:///Applications/Shooter.app/";
        fakes.processFacts
            .infoStrings[{"file:///Applications/Shooter.app/", "LSApplicationCategoryType"}] =
            "public.app-category.action-games";
        fakes.processFacts
            .infoStrings[{"file:///Applications/Browser.app/", "LSApplicationCategoryType"}] =
            "public.app-category.productivity";
        fakes.workspace.frontmostPID = 10;
        tool = std::make_unique<SmoothScrollingTool>(catalogDescriptor("smooth-scrolling"),
                                                     fakes.platform());
    }
    bool send(FakeEvent event) { return dispatch(fakes.events, event.eventType, event); }
    void activate(int pid) {
        fakes.workspace.frontmostPID = pid;
        fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                             &fakes.workspace.applications.at(pid));
    }
    // The vertical pixels posted so far, after letting every glide run out.
    std::int64_t scrolledAfterGlide() {
        fakes.scheduler.advance(Seconds(3));
        std::int64_t total = 0;
        for (const auto& posted : fakes.events.posted) {
            total += posted.event.integerField(eventField::scrollPointDeltaAxis1);
        }
        return total;
    }
};

TEST_F(SmoothScrollingToolTest, ANotchGlidesAsMarkedPixelScrollsWhileTheTimerRunsOnlyMeanwhile) {
    tool->start();
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_EQ(fakes.events.taps[0]->mask, std::uint64_t{1} << 22);
    EXPECT_FALSE(fakes.scheduler.hasPending());

    EXPECT_FALSE(send(wheelStep(1))) << "the step itself is swallowed";
    EXPECT_TRUE(tool->isGliding());
    EXPECT_TRUE(fakes.scheduler.hasPending());
    EXPECT_EQ(fakes.events.posted.size(), 1u) << "the first pixels go out at once";
    fakes.scheduler.advance(Seconds(0.051));
    EXPECT_EQ(fakes.events.posted.size(), 7u) << "one scroll per 1/120 s frame";

    EXPECT_EQ(scrolledAfterGlide(), 40);
    EXPECT_FALSE(tool->isGliding());
    EXPECT_FALSE(fakes.scheduler.hasPending()) << "no timer once the glide is over";
    for (const auto& posted : fakes.events.posted) {
        EXPECT_EQ(posted.location, EventSystem::Location::session);
        EXPECT_EQ(posted.event.integerField(eventField::sourceUserData), 0x4B564C545353);
        EXPECT_EQ(posted.event.integerField(eventField::scrollIsContinuous), 1);
        // The tool's own scroll comes round through the tap again and is let through.
        FakeEvent again = posted.event;
        EXPECT_TRUE(send(again));
    }
    EXPECT_FALSE(tool->isGliding());

    EXPECT_FALSE(send(wheelStep(-1)));
    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    EXPECT_FALSE(fakes.scheduler.hasPending()) << "stopping mid-glide drops the timer";
    const std::size_t posted = fakes.events.posted.size();
    fakes.scheduler.advance(Seconds(1));
    EXPECT_EQ(fakes.events.posted.size(), posted);
    tool->stop();
}

TEST_F(SmoothScrollingToolTest, TerminalsAndGamesKeepTheirNotches) {
    tool->start();
    activate(20);
    EXPECT_TRUE(tool->frontAppWantsSteps());
    EXPECT_TRUE(send(wheelStep(1))) << "a terminal";
    activate(30);
    EXPECT_TRUE(send(wheelStep(1))) << "a game, by its category";
    activate(10);
    EXPECT_FALSE(tool->frontAppWantsSteps());
    EXPECT_FALSE(send(wheelStep(1)));

    tool->stop();
    fakes.workspace.frontmostPID = 20;
    tool->start();
    EXPECT_TRUE(send(wheelStep(1))) << "the front app is checked at start too";
}

TEST_F(SmoothScrollingToolTest, TheGlideFollowsTheScrollDirectionToolInEitherTapOrder) {
    ScrollDirectionTool direction(catalogDescriptor("scroll-direction"), fakes.platform());
    tool->start();
    send(wheelStep(1));
    EXPECT_EQ(scrolledAfterGlide(), 40) << "the scroll-direction tool is off";

    fakes.preferences.set(ToolRegistry::enabledKey("scroll-direction"), true);
    fakes.events.posted.clear();
    direction.start();  // the newer tap sees events first
    EXPECT_FALSE(send(wheelStep(1)));
    EXPECT_EQ(scrolledAfterGlide(), -40);

    direction.stop();
    tool->stop();
    direction.start();
    tool->start();  // now smooth scrolling sees the wheel before the reversal
    fakes.events.posted.clear();
    EXPECT_FALSE(send(wheelStep(1)));
    EXPECT_EQ(scrolledAfterGlide(), -40);

    direction.setReverseMouse(false);
    fakes.events.posted.clear();
    send(wheelStep(1));
    EXPECT_EQ(scrolledAfterGlide(), 40);
}

TEST_F(SmoothScrollingToolTest, SettingsPersistAndBadStoredValuesFallBackToTheDefaults) {
    tool->setSpeed(1.5);
    tool->setGlide(Glide::longGlide);
    tool->setSpeed(-2);  // refused
    EXPECT_EQ(fakes.preferences.number("smoothScroll.speed"), 1.5);
    EXPECT_EQ(fakes.preferences.string("smoothScroll.glide"), "long");
    SmoothScrollingTool reread(catalogDescriptor("smooth-scrolling"), fakes.platform());
    EXPECT_EQ(reread.speed(), 1.5);
    EXPECT_EQ(reread.glide(), Glide::longGlide);

    fakes.preferences.set("smoothScroll.speed", std::string("fast"));
    fakes.preferences.set("smoothScroll.glide", std::string("endless"));
    SmoothScrollingTool damaged(catalogDescriptor("smooth-scrolling"), fakes.platform());
    EXPECT_EQ(damaged.speed(), 1.0);
    EXPECT_EQ(damaged.glide(), Glide::medium);
    EXPECT_EQ(fakes.preferences.string("smoothScroll.glide"), "endless") << "never overwritten";
}

TEST_F(SmoothScrollingToolTest, ThePageTakesASpeedAndOpensMouseSettings) {
    const SettingsPage page = tool->settingsPage();
    std::get<SettingsRow::Choice>(page.sections[0].rows[0].kind).set("2");
    EXPECT_EQ(tool->speed(), 2.0);
    EXPECT_FALSE(page.sections[0].rows[3].isVisible()) << "no error to show";
    std::get<SettingsRow::Button>(page.sections[1].rows[1].kind).action();
    EXPECT_EQ(
        fakes.workspace.openedURLs,
        std::vector<std::string>{"x-apple.systempreferences:com.apple.Mouse-Settings.extension"});
}

TEST_F(SmoothScrollingToolTest, AScrollThatCannotBeMadeLetsTheWheelStepThroughAndSaysSo) {
    tool->start();
    fakes.events.refuseScrollEvents = true;
    EXPECT_TRUE(send(wheelStep(1))) << "better a step than nothing";
    EXPECT_FALSE(tool->isGliding());
    EXPECT_FALSE(tool->lastError().empty());
    EXPECT_TRUE(tool->settingsPage().sections[0].rows[3].isVisible());

    fakes.events.refuseScrollEvents = false;
    EXPECT_FALSE(send(wheelStep(1)));
    EXPECT_TRUE(tool->lastError().empty());
    EXPECT_EQ(scrolledAfterGlide(), 40);
}

}  // namespace
}  // namespace quorvane
