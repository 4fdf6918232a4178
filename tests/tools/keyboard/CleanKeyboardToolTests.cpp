#include "tools/keyboard/CleanKeyboardTool.hpp"

#include <gtest/gtest.h>

#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint16_t kEscape = KeyboardLock::kEscapeKeyCode;

struct CleanKeyboardToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<CleanKeyboardTool> tool;

    void SetUp() override {
        tool = std::make_unique<CleanKeyboardTool>(catalogDescriptor("clean-keyboard"),
                                                   fakes.platform());
        tool->start();
    }
    // One event through the lock's tap; true when it went on.
    bool send(EventType type, std::uint16_t keyCode = 0, bool repeat = false) {
        FakeEvent event = FakeEvent::keyDown(keyCode, 0);
        event.eventType = type;
        event.integers[eventField::keyboardAutorepeat] = repeat ? 1 : 0;
        const bool passed = fakes.events.deliver(*fakes.events.taps.at(0), type, event);
        fakes.scheduler.runPending();
        return passed;
    }
};

TEST_F(CleanKeyboardToolTest, EveryKeyAndMediaKeyIsSwallowedWhileLockedAndAClickUnlocks) {
    EXPECT_TRUE(fakes.events.taps.empty()) << "turning the tool on does not lock by itself";
    tool->control()->action();
    ASSERT_TRUE(tool->isLocked());
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    for (const EventType type : {EventType::keyDown, EventType::keyUp, EventType::flagsChanged,
                                 EventType::systemDefined}) {
        EXPECT_FALSE(send(type, 0)) << raw(type);
    }
    EXPECT_TRUE(send(EventType::scrollWheel)) << "the trackpad is free unless asked";
    EXPECT_EQ(fakes.screens.panels.at(0)->alpha, 1.0);
    EXPECT_FALSE(send(EventType::leftMouseDown)) << "the unlocking click lands nowhere";
    EXPECT_FALSE(tool->isLocked());
    EXPECT_TRUE(fakes.events.taps.empty());
}

TEST_F(CleanKeyboardToolTest, FiveEscapesInARowUnlockButRepeatsAndOtherKeysDoNot) {
    tool->setLocksTrackpad(true);
    tool->lock();
    EXPECT_FALSE(send(EventType::scrollWheel));
    for (int i = 0; i < 4; ++i) {
        send(EventType::keyDown, kEscape);
    }
    send(EventType::keyDown, 0);  // a wipe over A starts the count again
    for (int i = 0; i < 4; ++i) {
        send(EventType::keyDown, kEscape);
        send(EventType::keyDown, kEscape, true);
    }
    EXPECT_TRUE(tool->isLocked());
    EXPECT_FALSE(send(EventType::keyDown, kEscape));
    EXPECT_FALSE(tool->isLocked());
}

TEST_F(CleanKeyboardToolTest, TheLockNeverOutlivesItsLimitOrTheToolsStop) {
    tool->setMinutes(1);
    tool->lock();
    fakes.scheduler.advance(Seconds{59});
    EXPECT_TRUE(tool->isLocked());
    fakes.scheduler.advance(Seconds{2});
    EXPECT_FALSE(tool->isLocked());

    tool->lock();
    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    tool->lock();
    EXPECT_FALSE(tool->isLocked()) << "no lock while the tool is off";
    fakes.scheduler.advance(Seconds{1});
    EXPECT_EQ(fakes.screens.panels.at(0)->alpha, 0.0) << "the card fades out";

    tool->start();
    fakes.events.refuseTaps = true;
    tool->lock();
    EXPECT_EQ(tool->lastError(), EventTap::refusedError("lock the keyboard"));
}

}  // namespace
}  // namespace quorvane
