#include "tools/windows/WindowDragEngine.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Engine = WindowDragEngine;
constexpr std::uint64_t kControl = 0x40000;
constexpr std::uint64_t kCommand = 0x100000;
constexpr std::uint64_t kShift = 0x20000;
constexpr std::uint64_t kOption = 0x80000;

struct DragTest : ::testing::Test {
    Engine engine;
    Rect window{100, 100, 300, 300};
    int lookups = 0;
    Engine::WindowFrameAt frameAt = [this](Point p) -> std::optional<Rect> {
        ++lookups;
        return window.contains(p) ? std::optional(window) : std::nullopt;
    };
    Engine::Outcome send(EventType type, Point p, double seconds,
                         std::uint64_t flags = kControl | kCommand) {
        return engine.handle(type, flags, p, Seconds(seconds), frameAt);
    }
};

TEST_F(DragTest, OnlyTheExactCombinationStartsADrag) {
    EXPECT_TRUE(send(EventType::leftMouseDown, {150, 150}, 0, kControl).pass);
    EXPECT_EQ(lookups, 0) << "an ordinary click costs no window lookup";
    EXPECT_TRUE(send(EventType::leftMouseDown, {150, 150}, 0, kControl | kCommand | kOption).pass);
    EXPECT_TRUE(send(EventType::leftMouseDown, {50, 50}, 0).pass) << "no window under the mouse";
    EXPECT_TRUE(send(EventType::leftMouseDragged, {60, 60}, 0).pass);

    const auto down = send(EventType::leftMouseDown, {150, 150}, 0, kControl | kCommand | kShift);
    EXPECT_FALSE(down.pass);
    EXPECT_TRUE(down.started);
    EXPECT_TRUE(engine.isResizing()) << "⇧ with the left button resizes";
    EXPECT_TRUE(send(EventType::keyDown, {150, 150}, 0).pass) << "other event types pass";
}

TEST_F(DragTest, EventsEveryTwoMillisecondsApplyAtMost120TimesASecondAndTheLastOnRelease) {
    send(EventType::leftMouseDown, {150, 150}, 0);
    std::vector<double> appliedAt;
    double t = 0;
    for (int i = 1; i <= 50; ++i) {
        t = i * 0.002;
        const auto outcome = send(EventType::leftMouseDragged, {150.0 + i, 150}, t);
        EXPECT_FALSE(outcome.pass);
        if (outcome.place) {
            appliedAt.push_back(t);
        }
    }
    ASSERT_GE(appliedAt.size(), 2u);
    for (std::size_t i = 1; i < appliedAt.size(); ++i) {
        EXPECT_GE(appliedAt[i] - appliedAt[i - 1], 1.0 / 120.0 - 1e-12);
    }
    EXPECT_LE(appliedAt.size(), 13u);
    const auto up = send(EventType::leftMouseUp, {999, 999}, t + 0.001);
    ASSERT_TRUE(up.place) << "the throttled last point is not lost";
    EXPECT_EQ(up.place->position, (Point{150, 100}))
        << "the last dragged point, not the release point";
}

TEST_F(DragTest, AGrabInTheMiddleResizesFromTheBottomRightCornerAndKeepsTheMinimumSize) {
    // Exactly a third of the way in is the middle: both edges 0, so the bottom-right corner moves.
    send(EventType::rightMouseDown, {200, 200}, 2);
    const auto corner = send(EventType::rightMouseDragged, {150, 100}, 3);
    EXPECT_EQ(corner.place, (Engine::Placement{{100, 100}, Size{250, 200}}));
    const auto tiny = send(EventType::rightMouseDragged, {-500, -500}, 4);
    EXPECT_EQ(tiny.place->size, (Size{160, 100}));
}

TEST_F(DragTest, TheTopEdgeResizesHeightOnlyWithTheBottomFixedAndTheMinimumHeight) {
    // The window spans 100…400 both ways; grabbed in the middle third across, the top third down.
    send(EventType::rightMouseDown, {250, 120}, 0);
    const auto taller = send(EventType::rightMouseDragged, {290, 70}, 1);
    EXPECT_EQ(taller.place, (Engine::Placement{{100, 50}, Size{300, 350}}))
        << "the mouse's sideways move leaves the width alone";
    const auto shortest = send(EventType::rightMouseDragged, {250, 390}, 2);
    EXPECT_EQ(shortest.place, (Engine::Placement{{100, 300}, Size{300, 100}}))
        << "never under the minimum height, the bottom edge staying at 400";

    // The bottom third: the top stays, only the height follows.
    send(EventType::rightMouseDown, {250, 380}, 3);
    const auto lower = send(EventType::rightMouseDragged, {200, 430}, 4);
    EXPECT_EQ(lower.place, (Engine::Placement{{100, 100}, Size{300, 350}}));
    EXPECT_EQ(send(EventType::rightMouseDragged, {250, 0}, 5).place,
              (Engine::Placement{{100, 100}, Size{300, 100}}));

    // The top-left corner moves both edges and keeps the bottom-right one.
    send(EventType::rightMouseDown, {110, 110}, 6);
    EXPECT_EQ(send(EventType::rightMouseDragged, {80, 90}, 7).place,
              (Engine::Placement{{70, 80}, Size{330, 320}}));
}

TEST(WindowDragKeys, RawValuesRoundTrip) {
    for (const auto keys :
         {Engine::Keys::controlCommand, Engine::Keys::optionCommand, Engine::Keys::controlOption}) {
        EXPECT_EQ(Engine::keysFromRawValue(Engine::rawValue(keys)), keys);
    }
    EXPECT_EQ(Engine::keysFromRawValue("shiftCommand"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
