#include "input/HUD.hpp"

#include <gtest/gtest.h>

#include "support/FakeScreens.hpp"
#include "support/ManualScheduler.hpp"
#include "ui/LevelBar.hpp"

namespace quorvane {
namespace {

struct HUDTest : ::testing::Test {
    FakeScreens screens;
    ManualScheduler scheduler;
    HUD hud{screens, scheduler};
    const HUDCard volume{"speaker.wave.2.fill", "Volume", 0.5};

    FakePanel& panel() { return *screens.panels.at(0); }
};

TEST_F(HUDTest, ALaterShowingRestartsTheTimeAndOneFadeCompletes) {
    hud.show(volume, true, Seconds(1.5));
    EXPECT_TRUE(panel().visible);
    EXPECT_EQ(panel().alpha, 1.0);
    EXPECT_EQ(panel().content, volume);
    scheduler.advance(Seconds(0.1));
    hud.show(volume, true, Seconds(1.5));
    scheduler.advance(Seconds(1.45));
    EXPECT_FALSE(panel().pendingFade) << "the first showing's hide was cancelled";
    scheduler.advance(Seconds(0.05));
    EXPECT_EQ(panel().alpha, 0.0);
    panel().finishFade();
    EXPECT_FALSE(panel().visible);
    EXPECT_EQ(screens.panels.size(), 1u) << "one panel for every showing";
}

TEST_F(HUDTest, AShowingDuringTheFadeKeepsThePanelUp) {
    hud.show(volume, true, Seconds(1.5));
    scheduler.advance(Seconds(1.5));
    ASSERT_TRUE(panel().pendingFade);
    auto olderFade = std::exchange(panel().pendingFade, nullptr);
    hud.show({"sun.max", "Brightness", 0.3}, true, Seconds(1.5));
    olderFade();
    EXPECT_TRUE(panel().visible);
    EXPECT_EQ(panel().alpha, 1.0);

    hud.hide();
    hud.hide();  // hiding a fading panel starts no second fade with the same generation
    panel().finishFade();
    EXPECT_FALSE(panel().visible);
}

TEST_F(HUDTest, HeldNoticeBlocksOrdinaryOnesUntilHidden) {
    hud.show({"command", "Hold ⌘Q to quit", std::nullopt}, false, Seconds(0), true);
    scheduler.advance(Seconds(60));
    EXPECT_TRUE(panel().visible) << "held: no automatic hide";
    hud.show(volume, true, Seconds(1.5));
    EXPECT_EQ(panel().content.title, "Hold ⌘Q to quit");

    hud.hide();
    EXPECT_FALSE(hud.isHeld());
    hud.show(volume, true, Seconds(1.5));
    EXPECT_EQ(panel().content, volume);
    EXPECT_EQ(hud.generation(), 2u);
}

TEST_F(HUDTest, CardGoesToTheScreenUnderTheMouse) {
    const Screen second{{1440, -200, 1920, 1080}, {1440, -200, 1920, 1050}};
    screens.displays.push_back(second);
    screens.mouse = {2000, 300};
    hud.show(volume, true, Seconds(1));
    EXPECT_EQ(panel().frame, Rect(1440 + 960 - 120, -200 + 120, 240, 180));

    screens.mouse = {-50, -50};  // between displays: the main one
    hud.show(volume, false, Seconds(1));
    EXPECT_EQ(panel().frame, Rect(720 - 120, 437.5 - 90, 240, 180));

    screens.mainIndex.reset();
    panel().frame = {};
    hud.show(volume, false, Seconds(1));
    EXPECT_EQ(panel().frame, Rect()) << "no screen at all: left where it was";
    EXPECT_TRUE(panel().visible);
}

TEST(LevelBar, FillsRoundedSixteenthsOfTheClampedLevel) {
    EXPECT_EQ((LevelBar{0.5}).filledSegments(), 8);
    EXPECT_EQ((LevelBar{1.7}).filledSegments(), 16);
    EXPECT_EQ((LevelBar{-0.3}).filledSegments(), 0);
    EXPECT_EQ((LevelBar{0.03}).filledSegments(), 0);
    EXPECT_EQ((LevelBar{0.032}).filledSegments(), 1);
    EXPECT_EQ((LevelBar{std::nan("")}).filledSegments(), 0);
    EXPECT_EQ((LevelBar{0.5}).segmentOpacity(7), 1.0);
    EXPECT_EQ((LevelBar{0.5}).segmentOpacity(8), LevelBar::kUnfilledOpacity);
}

}  // namespace
}  // namespace quorvane
