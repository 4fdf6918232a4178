#include "tools/input/MouseButtonsTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

struct MouseButtonsToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<MouseButtonsTool> tool;

    void SetUp() override {
        fakes.workspace.add(10, "com.apple.Safari", "Safari");
        fakes.workspace.add(20, "com.example.game", "Game");
        fakes.workspace.frontmostPID = 10;
        tool = std::make_unique<MouseButtonsTool>(catalogDescriptor("mouse-buttons"),
                                                  fakes.platform());
    }
    bool press(EventType type, std::int64_t button) {
        FakeEvent event;
        event.eventType = type;
        event.integers[eventField::mouseButtonNumber] = button;
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    bool click(std::int64_t button) {
        const bool down = press(EventType::otherMouseDown, button);
        EXPECT_EQ(press(EventType::otherMouseUp, button), down) << "the release goes with it";
        return down;
    }
    void activate(int pid) {
        fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                             &fakes.workspace.applications.at(pid));
    }
    // The key codes typed, with their direction, as "55v" (down) or "33^" (up).
    std::vector<std::string> typed() {
        std::vector<std::string> keys;
        for (const auto& posted : fakes.events.posted) {
            EXPECT_EQ(posted.event.integerField(eventField::sourceUserData), ownEventTag::key);
            keys.push_back(std::to_string(posted.event.integerField(eventField::keyboardKeycode)) +
                           (posted.event.eventType == EventType::keyDown ? "v" : "^"));
        }
        fakes.events.posted.clear();
        return keys;
    }
};

TEST_F(MouseButtonsToolTest, SideButtonsTypeCommandBracketsAndOtherButtonsPass) {
    tool->start();
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_EQ(fakes.events.taps[0]->mask, (std::uint64_t{1} << 25) | (std::uint64_t{1} << 26));

    EXPECT_FALSE(click(3));
    EXPECT_EQ(typed(), (std::vector<std::string>{"55v", "33v", "33^", "55^"})) << "⌘[ is back";
    EXPECT_FALSE(click(4));
    EXPECT_EQ(typed(), (std::vector<std::string>{"55v", "30v", "30^", "55^"})) << "⌘] is forward";
    EXPECT_TRUE(click(2)) << "the middle button is the app's";
    EXPECT_TRUE(click(5));
    EXPECT_TRUE(press(EventType::otherMouseUp, 3)) << "a release with no press of ours";
    EXPECT_TRUE(typed().empty());

    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    tool->stop();
}

TEST_F(MouseButtonsToolTest, ExceptedAppsKeepTheButtonsAndAPressIsNeverSplit) {
    tool->addException("com.example.game");
    tool->addException("com.example.game");
    EXPECT_EQ(fakes.preferences.stringArray("mouseButtons.exceptions"),
              std::vector<std::string>{"com.example.game"});
    tool->start();

    EXPECT_FALSE(press(EventType::otherMouseDown, 3));
    activate(20);
    EXPECT_FALSE(press(EventType::otherMouseUp, 3)) << "pressed in Safari: released with it";
    typed();
    EXPECT_TRUE(click(3));
    EXPECT_TRUE(typed().empty());
    EXPECT_TRUE(press(EventType::otherMouseDown, 4));
    activate(10);
    EXPECT_TRUE(press(EventType::otherMouseUp, 4)) << "the game had the press, so the release";

    tool->removeException("com.example.game");
    activate(20);
    EXPECT_FALSE(click(3));
    MouseButtonsTool reread(catalogDescriptor("mouse-buttons"), fakes.platform());
    EXPECT_TRUE(reread.exceptions().empty());
}

TEST_F(MouseButtonsToolTest, TheBracketsAreFoundOnTheUsersLayout) {
    // Dvorak types "[" and "]" with the keys that are "-" and "=" on a US keyboard.
    fakes.keyboardLayout.keys = {{27, u"["}, {24, u"]"}, {33, u"/"}, {30, u"="}};
    tool->start();
    click(3);
    click(4);
    EXPECT_EQ(typed(),
              (std::vector<std::string>{"55v", "27v", "27^", "55^", "55v", "24v", "24^", "55^"}));
}

}  // namespace
}  // namespace quorvane
