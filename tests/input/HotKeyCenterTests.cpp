#include "input/HotKeyCenter.hpp"

#include <gtest/gtest.h>

#include "platform/EventField.hpp"
#include "support/FakeHotKeySystem.hpp"

namespace quorvane {
namespace {

using namespace modifierFlag;

struct HotKeyCenterTest : ::testing::Test {
    FakeHotKeySystem system;
    HotKeyCenter center{system};
    std::vector<std::string> fired;

    std::optional<HotKey> add(const KeyCombo& combo, std::string name) {
        return center.registerCombo(combo, [this, name] { fired.push_back(name); });
    }
};

TEST_F(HotKeyCenterTest, PressRunsTheActionUntilTheHotKeyIsDropped) {
    auto hotKey = add({9, command | shift, "V"}, "paste");
    ASSERT_TRUE(hotKey);
    EXPECT_EQ(system.installs, 1);
    EXPECT_EQ(system.live.begin()->second.signature, 0x4B564C54u);
    EXPECT_TRUE(system.press(9, 0x100 | 0x200));
    EXPECT_EQ(fired, (std::vector<std::string>{"paste"}));
    EXPECT_EQ(HotKeyCenter::carbonModifiers(command | shift | option | control | 0x10000), 0x1B00u);

    center.dispatch(999);  // an id nobody holds
    hotKey.reset();
    EXPECT_TRUE(system.live.empty());
    EXPECT_EQ(center.count(), 0u);
    EXPECT_EQ(fired.size(), 1u);

    auto again = add({1, control, "S"}, "again");
    EXPECT_EQ(system.installs, 1) << "the handler is installed once for the process";
}

TEST_F(HotKeyCenterTest, SameKeyAndModifiersAreRefusedWhateverTheLabelEvenWhilePaused) {
    auto first = add({1, control, "S"}, "first");
    EXPECT_FALSE(add({1, control, "Ś"}, "second"));
    EXPECT_TRUE(add({1, control | shift, "S"}, "third")) << "other modifiers are another combo";

    center.pause();
    EXPECT_FALSE(add({1, control, "S"}, "fourth"));
}

TEST_F(HotKeyCenterTest, PauseSuspendsEveryShortcutAndResumeRegistersThemAgain) {
    auto before = add({1, control, "S"}, "before");
    center.pause();
    center.pause();
    EXPECT_TRUE(system.live.empty());
    const int calls = system.registerCalls;
    auto during = add({2, option, "D"}, "during");
    ASSERT_TRUE(during) << "accepted while paused";
    EXPECT_EQ(system.registerCalls, calls) << "without asking the system";
    EXPECT_FALSE(system.press(2, 0x800));

    center.resume();
    EXPECT_TRUE(system.live.empty()) << "two pauses need two resumes";
    center.resume();
    EXPECT_EQ(system.live.size(), 2u);
    center.resume();
    EXPECT_FALSE(center.isPaused()) << "an extra resume is harmless";
    EXPECT_TRUE(system.press(2, 0x800));
    EXPECT_EQ(fired, (std::vector<std::string>{"during"}));
    EXPECT_EQ(system.live.rbegin()->second.id, during->id()) << "same id as before";
}

TEST_F(HotKeyCenterTest, ShortcutTakenElsewhereIsRefusedAndStillUsesUpItsID) {
    system.takenElsewhere.insert({3, 0x100});
    auto first = add({1, control, "S"}, "first");
    EXPECT_FALSE(add({3, command, "C"}, "taken"));
    EXPECT_EQ(center.count(), 1u) << "nothing stored for a refusal";
    auto next = add({4, command, "E"}, "next");
    EXPECT_EQ(next->id(), first->id() + 2);

    // Taken by another application while paused: kept without the system's part, silently.
    auto paused = add({5, command, "F"}, "paused");
    center.pause();
    system.takenElsewhere.insert({5, 0x100});
    center.resume();
    EXPECT_EQ(center.count(), 3u);
    EXPECT_FALSE(system.press(5, 0x100));
    paused.reset();
    EXPECT_EQ(center.count(), 2u);
}

TEST_F(HotKeyCenterTest, ActionMayGiveItsOwnHotKeyBack) {
    std::optional<HotKey> self;
    self = center.registerCombo({1, control, "S"}, [&] { self.reset(); });
    EXPECT_TRUE(system.press(1, 0x1000));
    EXPECT_FALSE(self);
    EXPECT_TRUE(system.live.empty());
}

}  // namespace
}  // namespace quorvane
