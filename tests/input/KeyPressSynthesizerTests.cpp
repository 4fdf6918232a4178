#include "input/KeyPressSynthesizer.hpp"

#include <gtest/gtest.h>

#include "support/FakeEventSystem.hpp"

namespace quorvane {
namespace {

using namespace modifierFlag;

TEST(KeyPressSynthesizer, PressesModifiersOneByOneThenTheKeyAndReleasesInReverse) {
    FakeEventSystem events;
    KeyPressSynthesizer::press(events, 9, command | shift, ownEventTag::key);
    std::vector<std::string> typed;
    for (const auto& [location, event] : events.posted) {
        EXPECT_EQ(location, EventSystem::Location::hid);
        EXPECT_EQ(event.integerField(eventField::sourceUserData), ownEventTag::key);
        typed.push_back(std::to_string(event.integerField(eventField::keyboardKeycode)) +
                        (event.type() == EventType::keyDown ? "↓" : "↑") + "/" +
                        std::to_string(event.flags()));
    }
    EXPECT_EQ(typed, (std::vector<std::string>{"55↓/1048576", "56↓/1179648", "9↓/1179648",
                                               "9↑/1179648", "56↑/1048576", "55↑/0"}));

    events.posted.clear();
    KeyPressSynthesizer::press(events, 36, 0);
    ASSERT_EQ(events.posted.size(), 2u);
    EXPECT_FALSE(events.posted[0].event.integers.contains(eventField::sourceUserData));
}

}  // namespace
}  // namespace quorvane
