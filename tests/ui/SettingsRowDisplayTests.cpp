#include "ui/SettingsRowDisplay.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

SettingsRow::Choice presetChoice(std::string current) {
    return SettingsRow::Choice{"Preset",
                               {{"flat", "Flat"}, {"rock", "Rock"}, {"vocal", "Vocal"}},
                               [current] { return current; },
                               {}};
}

TEST(SettingsRowDisplayTest, AChoiceShowsItsValueEvenWhenNoOptionMatches) {
    const ChoiceDisplay rock = choiceDisplay(presetChoice("rock"));
    EXPECT_EQ(rock.items, (std::vector<std::string>{"Flat", "Rock", "Vocal"}));
    EXPECT_EQ(rock.selected, 1u);
    EXPECT_EQ(rock.optionCount, 3u);
    EXPECT_EQ(rock.selectedTitle(), "Rock");

    // Gains matching no preset: the value is shown as an extra, unchoosable item, never as an
    // empty title or as the first option.
    const ChoiceDisplay custom = choiceDisplay(presetChoice("Custom"));
    EXPECT_EQ(custom.items, (std::vector<std::string>{"Flat", "Rock", "Vocal", "Custom"}));
    EXPECT_EQ(custom.selected, 3u);
    EXPECT_EQ(custom.optionCount, 3u);

    EXPECT_EQ(choiceDisplay(presetChoice("")).selectedTitle(), "none");
    SettingsRow::Choice unbound = presetChoice("rock");
    unbound.get = nullptr;
    EXPECT_EQ(choiceDisplay(unbound).selectedTitle(), "none");
}

TEST(SettingsRowDisplayTest, TickMarksOnePerReachableValue) {
    SettingsRow::Slider slider{"Gain", -12, 12, 1, {}, {}, {}};
    EXPECT_EQ(tickMarkCount(slider), 25);
    slider = {"Opacity", 0, 1, 0.1, {}, {}, {}};
    EXPECT_EQ(tickMarkCount(slider), 11) << "0.1 does not divide 1 exactly in binary";
    slider.step = 0;
    EXPECT_EQ(tickMarkCount(slider), 0) << "continuous";
    slider = {"Broken", 5, 5, 1, {}, {}, {}};
    EXPECT_EQ(tickMarkCount(slider), 0);
    slider = {"Reversed", 5, 1, 1, {}, {}, {}};
    EXPECT_EQ(tickMarkCount(slider), 0);
}

TEST(SettingsRowDisplayTest, ShortcutTextClearButtonAndStoppingEveryRecorder) {
    std::string combo;
    bool recording = false;
    int stops = 0;
    SettingsRow::Shortcut shortcut;
    shortcut.displayText = [&] { return combo; };
    shortcut.isRecording = [&] { return recording; };
    shortcut.clear = [&] { combo.clear(); };
    shortcut.stopRecording = [&] { ++stops; };

    EXPECT_EQ(shortcutText(shortcut), "none");
    EXPECT_FALSE(showsClearButton(shortcut)) << "nothing to clear";
    combo = "⌃⌥←";
    EXPECT_EQ(shortcutText(shortcut), "⌃⌥←");
    EXPECT_TRUE(showsClearButton(shortcut));
    recording = true;
    EXPECT_FALSE(showsClearButton(shortcut)) << "hidden while the recorder listens";
    recording = false;
    SettingsRow::Shortcut unclearable = shortcut;
    unclearable.clear = nullptr;
    EXPECT_FALSE(showsClearButton(unclearable));

    // Every recorder on the page stops, in any section; rows without one are passed over.
    SettingsRow::Shortcut noRecorder;
    SettingsPage page;
    page.add({"", {{shortcut, {}}, {SettingsRow::Note{"text"}, {}}}, ""})
        .add({"More", {{noRecorder, {}}, {shortcut, {}}}, ""});
    stopRecording(page);
    EXPECT_EQ(stops, 2);
}

}  // namespace
}  // namespace quorvane
