#include "tools/keyboard/HoldToQuitTool.hpp"

#include <gtest/gtest.h>

#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint64_t kCommand = modifierFlag::command;
constexpr std::uint16_t kQ = HoldToQuitEngine::kQKeyCode;

struct HoldToQuitToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<HoldToQuitTool> tool;

    void SetUp() override {
        fakes.workspace.add(10, "com.apple.TextEdit", "TextEdit");
        fakes.workspace.frontmostPID = 10;
        tool =
            std::make_unique<HoldToQuitTool>(catalogDescriptor("hold-to-quit"), fakes.platform());
        tool->start();
    }
    bool send(EventType type, std::uint16_t keyCode, std::uint64_t flags, bool repeat = false) {
        FakeEvent event = FakeEvent::keyDown(keyCode, flags);
        event.eventType = type;
        event.integers[eventField::keyboardAutorepeat] = repeat ? 1 : 0;
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    bool cardVisible() {
        return !fakes.screens.panels.empty() && fakes.screens.panels[0]->visible &&
               fakes.screens.panels[0]->alpha > 0;
    }
};

TEST_F(HoldToQuitToolTest, AQuickCommandQDoesNothingAndOtherShortcutsPass) {
    EXPECT_FALSE(send(EventType::keyDown, kQ, kCommand));
    fakes.scheduler.advance(Seconds{0.3});
    EXPECT_FALSE(send(EventType::keyUp, kQ, kCommand));
    fakes.scheduler.advance(Seconds{2});
    EXPECT_TRUE(fakes.workspace.terminated.empty());
    EXPECT_FALSE(cardVisible());

    EXPECT_TRUE(send(EventType::keyDown, 13, kCommand)) << "⌘W";
    EXPECT_TRUE(send(EventType::keyDown, kQ, 0)) << "plain Q";
    EXPECT_TRUE(send(EventType::keyDown, kQ, kCommand | modifierFlag::option)) << "⌥⌘Q";
    EXPECT_TRUE(fakes.workspace.terminated.empty());
}

TEST_F(HoldToQuitToolTest, AHeldCommandQFillsTheBarAndQuitsTheFrontAppOnce) {
    ASSERT_FALSE(send(EventType::keyDown, kQ, kCommand));
    fakes.scheduler.advance(Seconds{0.5});
    ASSERT_TRUE(cardVisible());
    const auto level = fakes.screens.panels[0]->content.level;
    ASSERT_TRUE(level.has_value());
    EXPECT_NEAR(*level, 0.5, 0.05);
    EXPECT_FALSE(send(EventType::keyDown, kQ, kCommand, true)) << "repeats are swallowed";
    fakes.scheduler.advance(Seconds{0.6});
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{10});
    fakes.scheduler.advance(Seconds{2});
    EXPECT_FALSE(send(EventType::keyDown, kQ, kCommand, true));
    EXPECT_FALSE(send(EventType::keyUp, kQ, kCommand));
    EXPECT_EQ(fakes.workspace.terminated.size(), 1u) << "one quit per hold";
    EXPECT_FALSE(cardVisible());
}

TEST_F(HoldToQuitToolTest, ReleasingEitherKeyEarlyCancels) {
    send(EventType::keyDown, kQ, kCommand);
    fakes.scheduler.advance(Seconds{0.8});
    EXPECT_TRUE(send(EventType::flagsChanged, 0, 0)) << "⌘ let go first";
    fakes.scheduler.advance(Seconds{2});
    EXPECT_TRUE(fakes.workspace.terminated.empty());
    EXPECT_FALSE(cardVisible());

    tool->setHoldSeconds(2.0);
    send(EventType::keyDown, kQ, kCommand);
    fakes.scheduler.advance(Seconds{1.5});
    send(EventType::keyUp, kQ, kCommand);
    fakes.scheduler.advance(Seconds{2});
    EXPECT_TRUE(fakes.workspace.terminated.empty()) << "the longer hold was kept";
    EXPECT_EQ(fakes.preferences.number(HoldToQuitTool::kHoldKey), 2.0);
}

TEST_F(HoldToQuitToolTest, StoppingMidHoldLeavesNoTapNoCardAndNoQuit) {
    send(EventType::keyDown, kQ, kCommand);
    fakes.scheduler.advance(Seconds{0.5});
    tool->stop();
    fakes.scheduler.advance(Seconds{2});
    EXPECT_TRUE(fakes.events.taps.empty());
    EXPECT_TRUE(fakes.workspace.terminated.empty());
    EXPECT_FALSE(cardVisible());

    fakes.events.refuseTaps = true;
    tool->start();
    EXPECT_EQ(tool->lastError(), EventTap::refusedError("watch the keyboard"));
}

}  // namespace
}  // namespace quorvane
