#include "input/ShortcutSetting.hpp"

#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "input/InputServices.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using namespace modifierFlag;

constexpr std::uint64_t kKeyDownBit = std::uint64_t{1} << 10;

struct ShortcutSettingTest : ::testing::Test {
    FakePlatform fakes;
    int presses = 0;
    int changes = 0;
    std::optional<ShortcutSetting> setting;

    void make(std::optional<KeyCombo> defaultCombo = KeyCombo{9, command | shift, "V"}) {
        setting.emplace(
            fakes.platform(), "clipboard.shortcut", defaultCombo, [this] { ++presses; },
            [this] { ++changes; });
    }
    const SettingsRow::Shortcut& shortcutRow(const SettingsRow& row) {
        return std::get<SettingsRow::Shortcut>(row.kind);
    }
    // What the recorder's local monitor answers for a key press.
    bool type(std::uint32_t keyCode, std::uint64_t flags, std::string characters = "") {
        return fakes.eventMonitors.send(FakeEvent::keyDown(keyCode, flags, std::move(characters)));
    }
};

TEST_F(ShortcutSettingTest, RunsOnlyWhileActiveAndShowsAConflictOnlyWhenTheFlagChanges) {
    make();
    EXPECT_TRUE(fakes.hotKeys.live.empty()) << "nothing registered before the tool starts";
    setting->activate();
    EXPECT_TRUE(fakes.hotKeys.press(9, 0x100 | 0x200));
    EXPECT_EQ(presses, 1);

    // Another tool holds ⌃K; another application holds ⌃L.
    auto other = fakes.input.hotKeys.registerCombo({40, control, "K"}, [] {});
    fakes.hotKeys.takenElsewhere.insert({37, 0x1000});
    changes = 0;
    setting->set(KeyCombo{40, control, "K"});
    EXPECT_TRUE(setting->hasConflict());
    EXPECT_EQ(changes, 2) << "the shortcut and the flag";
    setting->set(KeyCombo{37, control, "L"});
    EXPECT_TRUE(setting->hasConflict());
    EXPECT_EQ(changes, 3) << "the flag did not change";

    const SettingsRow row = setting->row("Open clipboard history");
    EXPECT_EQ(SettingsTextRenderer::renderRow(row),
              "Open clipboard history: ⌃L\n    ! " + std::string(ShortcutSetting::kConflictNotice));

    shortcutRow(row).clear();
    EXPECT_FALSE(setting->hasConflict()) << "no shortcut, no conflict";
    EXPECT_EQ(SettingsTextRenderer::renderRow(row), "Open clipboard history: none");
    EXPECT_EQ(shortcutRow(row).buttonTitle(), "Record Shortcut");
    shortcutRow(row).restoreDefault();
    EXPECT_EQ(shortcutRow(row).displayText(), "⇧⌘V");

    setting->deactivate();
    EXPECT_EQ(fakes.hotKeys.live.size(), 1u) << "only the other tool's shortcut is left";
    EXPECT_EQ(fakes.input.hotKeys.count(), 1u);
}

TEST_F(ShortcutSettingTest, StoredChoiceIsReadBackAndNoDefaultMeansNoRestoreButton) {
    make(std::nullopt);
    EXPECT_FALSE(setting->shortcut());
    EXPECT_FALSE(shortcutRow(setting->row("Pick")).restoreDefault);
    setting->set(KeyCombo{2, option, "D"});
    make();
    EXPECT_EQ(setting->shortcut(), (KeyCombo{2, option, "D"}));
}

TEST_F(ShortcutSettingTest, RecordingSuspendsShortcutsAndTheFirstShortcutPressEndsIt) {
    make();
    setting->activate();
    const SettingsRow row = setting->row("Shortcut");
    shortcutRow(row).toggleRecording();
    EXPECT_TRUE(shortcutRow(row).isRecording());
    EXPECT_EQ(shortcutRow(row).buttonTitle(), "Type a shortcut…");
    EXPECT_TRUE(fakes.input.hotKeys.isPaused());
    EXPECT_FALSE(fakes.hotKeys.press(9, 0x100 | 0x200)) << "typing the old one fires nothing";
    ASSERT_EQ(fakes.eventMonitors.monitors.size(), 1u);
    EXPECT_EQ(fakes.eventMonitors.monitors[0]->mask, kKeyDownBit);

    EXPECT_FALSE(type(0, shift, "a")) << "swallowed, though no shortcut";
    EXPECT_FALSE(type(0, 0, "a"));
    EXPECT_TRUE(setting->recorder().isRecording());
    EXPECT_FALSE(type(40, command | option, "k"));
    EXPECT_FALSE(setting->recorder().isRecording());
    EXPECT_FALSE(fakes.input.hotKeys.isPaused());
    EXPECT_TRUE(fakes.eventMonitors.monitors.empty());
    EXPECT_EQ(setting->shortcut(), (KeyCombo{40, command | option, "K"}));
    EXPECT_EQ(KeyCombo::load(fakes.preferences, "clipboard.shortcut", std::nullopt),
              setting->shortcut());
    EXPECT_TRUE(fakes.hotKeys.press(40, 0x100 | 0x800));
    EXPECT_EQ(presses, 1);
}

TEST_F(ShortcutSettingTest, EscapeGivesUpAndStoppingTwiceResumesOnce) {
    make();
    setting->activate();
    setting->recorder().start();
    setting->recorder().start();
    EXPECT_FALSE(type(KeyCombo::kEscapeKeyCode, command, "\x1b"));
    EXPECT_FALSE(setting->recorder().isRecording());
    EXPECT_EQ(setting->shortcut(), (KeyCombo{9, command | shift, "V"}));
    setting->recorder().stop();

    // A paused centre would stay paused if stop resumed it on a second call or not at all.
    fakes.input.hotKeys.pause();
    setting->recorder().stop();
    EXPECT_TRUE(fakes.input.hotKeys.isPaused());
    fakes.input.hotKeys.resume();

    setting->recorder().toggle();
    setting.reset();
    EXPECT_FALSE(fakes.input.hotKeys.isPaused()) << "a recorder that goes away resumes";
    EXPECT_TRUE(fakes.hotKeys.live.empty());
}

TEST_F(ShortcutSettingTest, StartingASecondRecorderEndsTheFirstAndOnlyItRecords) {
    make();
    setting->activate();
    ShortcutSetting other(
        fakes.platform(), "windowSnap.leftHalf", KeyCombo{123, control | option, "←"}, [] {},
        [] {});
    other.activate();

    setting->recorder().start();
    other.recorder().start();
    EXPECT_FALSE(setting->recorder().isRecording()) << "one recorder at a time";
    setting->recorder().stop();
    EXPECT_TRUE(fakes.input.hotKeys.isPaused()) << "the first one's stop must not wake them";
    EXPECT_FALSE(fakes.hotKeys.press(9, 0x100 | 0x200)) << "an owned combo fires nothing";
    ASSERT_EQ(fakes.eventMonitors.monitors.size(), 1u) << "one key press, one recorder";

    EXPECT_FALSE(type(40, command | option, "k"));
    EXPECT_EQ(other.shortcut(), (KeyCombo{40, command | option, "K"}));
    EXPECT_EQ(setting->shortcut(), (KeyCombo{9, command | shift, "V"}));
    EXPECT_FALSE(fakes.input.hotKeys.isPaused());
    EXPECT_TRUE(fakes.hotKeys.press(9, 0x100 | 0x200));
    EXPECT_EQ(presses, 1);
}

}  // namespace
}  // namespace quorvane
