#include "input/EventTap.hpp"

#include <gtest/gtest.h>

#include <array>

#include "support/FakeEventSystem.hpp"

namespace quorvane {
namespace {

TEST(EventTap, MaskHasOneBitPerTypeAndSkipsNumbersThatCannotBeInOne) {
    const std::array types = {EventType::keyDown, EventType::keyUp, EventType::systemDefined};
    const std::array<std::uint32_t, 3> rawTypes = {29, 64, 0xFFFFFFFF};
    EXPECT_EQ(EventTap::mask(types, rawTypes), 0x20004C00u);

    FakeEventSystem system;
    const std::array<std::uint32_t, 2> onlyLarge = {64, 100};
    auto tap = EventTap::create(system, {}, onlyLarge, [](EventType, Event&) { return true; });
    ASSERT_NE(tap, nullptr) << "a tap with an empty mask still exists";
    ASSERT_EQ(system.taps.size(), 1u);
    EXPECT_EQ(system.taps[0]->mask, 0u);
}

TEST(EventTap, DisabledNoticeReenablesTheTapUnseenAndTheNextEventArrives) {
    FakeEventSystem system;
    std::vector<EventType> seen;
    auto tap = EventTap::create(system, {EventType::keyDown}, [&](EventType type, Event&) {
        seen.push_back(type);
        return true;
    });
    auto& live = *system.taps.at(0);
    FakeEvent key = FakeEvent::keyDown(0, 0);

    live.enabled = false;  // the handler was too slow
    EXPECT_TRUE(system.deliver(live, EventType::keyDown, key));
    FakeEvent notice;
    EXPECT_TRUE(live.callback(EventType::tapDisabledByTimeout, notice)) << "the notice passes";
    EXPECT_TRUE(live.enabled);
    EXPECT_TRUE(live.callback(EventType::tapDisabledByUserInput, notice));
    EXPECT_TRUE(seen.empty()) << "the handler never sees a notice";

    system.deliver(live, EventType::keyDown, key);
    EXPECT_EQ(seen, (std::vector<EventType>{EventType::keyDown}));
}

TEST(EventTap, HandlerPassesChangedEventsOrSwallowsThemOneByOne) {
    FakeEventSystem system;
    auto tap = EventTap::create(system, {EventType::keyDown, EventType::keyUp},
                                [](EventType type, Event& event) {
                                    event.setFlags(modifierFlag::command);
                                    return type == EventType::keyUp;
                                });
    auto& live = *system.taps.at(0);
    FakeEvent down = FakeEvent::keyDown(1, 0);
    FakeEvent up = down;
    up.eventType = EventType::keyUp;
    EXPECT_FALSE(system.deliver(live, EventType::keyDown, down));
    EXPECT_TRUE(system.deliver(live, EventType::keyUp, up)) << "the tap pairs nothing";
    EXPECT_EQ(up.flags(), modifierFlag::command) << "changes go on with the event";
}

TEST(EventTap, RefusedTapIsNothingAndDroppingOneEndsIt) {
    FakeEventSystem system;
    system.refuseTaps = true;
    EXPECT_EQ(
        EventTap::create(system, {EventType::scrollWheel}, [](EventType, Event&) { return false; }),
        nullptr);

    system.refuseTaps = false;
    auto tap =
        EventTap::create(system, {EventType::scrollWheel}, [](EventType, Event&) { return false; });
    EXPECT_EQ(system.taps.size(), 1u);
    tap.reset();
    EXPECT_TRUE(system.taps.empty());
    tap.reset();  // a tool stopped twice
}

}  // namespace
}  // namespace quorvane
