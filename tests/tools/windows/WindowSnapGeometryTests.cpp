#include <gtest/gtest.h>

#include "tools/windows/WindowSnapPlan.hpp"

namespace quorvane {
namespace {

using Outcome = WindowSnapPlan::Outcome;

// A 1440×900 primary display whose visible area is 1440×875 under a 25-point menu bar.
const DisplayLayout::Display kLaptop{{0, 0, 1440, 900}, {0, 0, 1440, 875}};

TEST(WindowSnapGeometry, HalvesQuartersAndCentreOnOneDisplay) {
    const DisplayLayout displays({kLaptop});
    const Rect window(100, 100, 800, 600);
    const auto frame = [&](SnapAction action) {
        const auto plan = WindowSnapPlan::make(action, window, displays);
        EXPECT_EQ(plan.outcome, Outcome::apply);
        return plan.frame;
    };
    EXPECT_EQ(frame(SnapAction::leftHalf), Rect(0, 25, 720, 875));
    EXPECT_EQ(frame(SnapAction::rightHalf), Rect(720, 25, 720, 875));
    EXPECT_EQ(frame(SnapAction::bottomHalf), Rect(0, 462, 1440, 438)) << "437.5 rounded outward";
    EXPECT_EQ(frame(SnapAction::bottomRight), Rect(720, 462, 720, 438));
    EXPECT_EQ(frame(SnapAction::maximize), Rect(0, 25, 1440, 875));
    EXPECT_EQ(frame(SnapAction::center), Rect(320, 162, 800, 601));

    const auto huge =
        WindowSnapPlan::make(SnapAction::center, Rect(-300, -200, 2000, 1200), displays);
    EXPECT_EQ(huge.frame, Rect(0, 25, 1440, 875)) << "a window larger than the area fills it";
    EXPECT_EQ(WindowSnapPlan::make(SnapAction::nextDisplay, window, displays).outcome,
              Outcome::nothing);
    EXPECT_EQ(
        WindowSnapPlan::make(SnapAction::leftHalf, Rect(5000, 5000, 10, 10), displays).outcome,
        Outcome::beep)
        << "no display under the window";
}

TEST(WindowSnapGeometry, OddSizesRoundOutwardWithoutGaps) {
    const DisplayLayout displays({{{0, 0, 1367, 769}, {0, 0, 1367, 745}}});
    const Rect left =
        WindowSnapPlan::make(SnapAction::leftHalf, Rect(0, 30, 100, 100), displays).frame;
    const Rect right =
        WindowSnapPlan::make(SnapAction::rightHalf, Rect(0, 30, 100, 100), displays).frame;
    EXPECT_EQ(left, Rect(0, 24, 684, 745));
    EXPECT_EQ(right, Rect(683, 24, 684, 745));
}

TEST(WindowSnapGeometry, NextDisplayCyclesThroughDisplaysAboveLeftAndOfOtherHeights) {
    // The primary laptop; a taller display to its left, lower edge aligned; one above it.
    const DisplayLayout displays({
        kLaptop,
        {{-1080, -500, 1080, 1920}, {-1080, -500, 1080, 1895}},
        {{0, 900, 2560, 1440}, {0, 900, 2560, 1415}},
    });
    EXPECT_EQ(displays.visibleArea(1), Rect(-1080, -495, 1080, 1895));
    EXPECT_EQ(displays.visibleArea(2), Rect(0, -1415, 2560, 1415));

    Rect window(200, 200, 1000, 501);
    std::vector<std::size_t> visited;
    for (int step = 0; step < 3; ++step) {
        const auto plan = WindowSnapPlan::make(SnapAction::nextDisplay, window, displays);
        ASSERT_EQ(plan.outcome, Outcome::apply);
        window = plan.frame;
        visited.push_back(*displays.displayContaining({window.midX(), window.midY()}));
    }
    EXPECT_EQ(visited, (std::vector<std::size_t>{1, 2, 0}));
    EXPECT_EQ(window.size, (Size{1000, 501})) << "the size survives the round trip";
}

TEST(SnapAction, RawValuesRoundTripAndAreUnique) {
    for (const auto action : kAllSnapActions) {
        EXPECT_EQ(snapActionFromRawValue(rawValue(action)), action);
    }
    EXPECT_EQ(snapActionFromRawValue("leftHalves"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
