#include "tools/input/ScrollDirectionTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/input/ScrollTapDispatch.hpp"

namespace quorvane {
namespace {

struct ScrollDirectionToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<ScrollDirectionTool> tool;

    void SetUp() override {
        tool = std::make_unique<ScrollDirectionTool>(catalogDescriptor("scroll-direction"),
                                                     fakes.platform());
    }
    // Sends the event through the tap and answers it as the app receives it.
    FakeEvent send(FakeEvent event) {
        EXPECT_TRUE(dispatch(fakes.events, event.eventType, event)) << "never swallowed";
        return event;
    }
};

TEST_F(ScrollDirectionToolTest, TheMouseWheelTurnsAroundInEveryDeltaFieldAndTheTrackpadStays) {
    tool->start();
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_EQ(fakes.events.taps[0]->mask, std::uint64_t{1} << 22);

    const FakeEvent wheel = send(wheelStep(2, -1));
    EXPECT_EQ(wheel.doubleField(eventField::scrollFixedPtDeltaAxis1), -2);
    EXPECT_EQ(wheel.doubleField(eventField::scrollFixedPtDeltaAxis2), 1);
    EXPECT_EQ(wheel.integerField(eventField::scrollDeltaAxis1), -2);
    EXPECT_EQ(wheel.integerField(eventField::scrollDeltaAxis2), 1);
    EXPECT_EQ(wheel.integerField(eventField::scrollPointDeltaAxis1), -20);
    EXPECT_EQ(wheel.integerField(eventField::scrollPointDeltaAxis2), 10);
    EXPECT_EQ(wheel.integerField(eventField::sourceUserData), ScrollReversal::kReversedTag);
    EXPECT_EQ(send(wheel).doubleField(eventField::scrollFixedPtDeltaAxis1), -2)
        << "a reversed event that comes round again is not turned back";

    EXPECT_EQ(send(trackpadSwipe(3)).doubleField(eventField::scrollFixedPtDeltaAxis1), 3);
    FakeEvent momentum = trackpadSwipe(3);
    momentum.integers[eventField::scrollPhase] = 0;
    momentum.integers[eventField::scrollMomentumPhase] = 2;
    EXPECT_EQ(send(momentum).doubleField(eventField::scrollFixedPtDeltaAxis1), 3)
        << "the coasting after a swipe is the trackpad's too";
    FakeEvent smoothedWheel = wheelStep(3);
    smoothedWheel.integers[eventField::scrollIsContinuous] = 1;  // a driver's smoothing, no phase
    EXPECT_EQ(send(smoothedWheel).doubleField(eventField::scrollFixedPtDeltaAxis1), -3);

    FakeEvent glide = wheelStep(3);
    glide.integers[eventField::sourceUserData] = ownEventTag::scroll;
    EXPECT_EQ(send(glide).doubleField(eventField::scrollFixedPtDeltaAxis1), 3)
        << "smooth scrolling's glide already goes the right way";
    FakeEvent tagged = wheelStep(1);
    tagged.integers[eventField::sourceUserData] = 77;  // another program's own tag
    const FakeEvent taggedOut = send(tagged);
    EXPECT_EQ(taggedOut.doubleField(eventField::scrollFixedPtDeltaAxis1), -1);
    EXPECT_EQ(taggedOut.integerField(eventField::sourceUserData), 77) << "left as it was";

    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    tool->stop();
}

TEST_F(ScrollDirectionToolTest, EachDeviceFollowsItsOwnSwitchAndTheSwitchesPersist) {
    tool->start();
    tool->setReverseMouse(false);
    tool->setReverseTrackpad(true);
    EXPECT_EQ(send(wheelStep(1)).doubleField(eventField::scrollFixedPtDeltaAxis1), 1);
    EXPECT_EQ(send(trackpadSwipe(1)).doubleField(eventField::scrollFixedPtDeltaAxis1), -1);

    EXPECT_EQ(fakes.preferences.boolean("scrollDirection.reverseMouse"), false);
    EXPECT_EQ(fakes.preferences.boolean("scrollDirection.reverseTrackpad"), true);
    const auto reread = ScrollReversal::read(fakes.preferences);
    EXPECT_FALSE(reread.reverseMouse);
    EXPECT_TRUE(reread.reverseTrackpad);

    fakes.preferences.set("scrollDirection.reverseMouse", std::string("yes"));
    EXPECT_TRUE(ScrollReversal::read(fakes.preferences).reverseMouse)
        << "a damaged value means the default";
}

}  // namespace
}  // namespace quorvane
