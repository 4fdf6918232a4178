#include "ui/SettingsRowDisplay.hpp"

#include <gtest/gtest.h>

#include "support/ViewNodeSearch.hpp"

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
    EXPECT_EQ(recorderTitle(unclearable), "Record Shortcut") << "a row that names no title";
    unclearable.buttonTitle = [] { return std::string("⌃⌥←"); };
    EXPECT_EQ(recorderTitle(unclearable), "⌃⌥←");

    // Every recorder on the page stops, in any section; rows without one are passed over.
    SettingsRow::Shortcut noRecorder;
    SettingsPage page;
    page.add({"", {{shortcut, {}}, {SettingsRow::Note{"text"}, {}}}, ""})
        .add({"More", {{noRecorder, {}}, {shortcut, {}}}, ""});
    stopRecording(page);
    EXPECT_EQ(stops, 2);
}

TEST(SettingsRowDisplayTest, UnboundRowsReadAsOffOrTheirMinimumAndStoreNothing) {
    SettingsRow::Toggle toggle{"Sound", nullptr, nullptr, ""};
    EXPECT_FALSE(isOn(toggle));
    toggle.get = [] { return true; };
    EXPECT_TRUE(isOn(toggle));

    SettingsRow::Slider slider{"Gain", -12, 12, 1, nullptr, nullptr, nullptr};
    EXPECT_EQ(currentValue(slider), -12);
    SettingsRow::Stepper stepper{"Count", 3, 9, 1, nullptr, nullptr, nullptr};
    EXPECT_EQ(currentValue(stepper), 3);
    EXPECT_EQ(currentText(SettingsRow::TextField{"Name", "", nullptr, nullptr}), "");

    SettingsRow::Choice unbound = presetChoice("rock");
    chooseItem(unbound, 0);  // no setter: nothing happens, nothing breaks

    SettingsRow row{SettingsRow::Note{"text"}, nullptr};
    EXPECT_TRUE(isShown(row));
    bool visible = false;
    row.isVisible = [&] { return visible; };
    EXPECT_FALSE(isShown(row));
    visible = true;
    EXPECT_TRUE(isShown(row));
}

TEST(SettingsRowDisplayTest, ChoosingAnItemStoresOnlyRealOptions) {
    std::vector<std::string> stored;
    SettingsRow::Choice choice = presetChoice("Custom");
    choice.set = [&](const std::string& value) { stored.push_back(value); };
    chooseItem(choice, 2);
    chooseItem(choice, 0);
    chooseItem(choice, 3);   // the "Custom" item shown for gains matching no preset
    chooseItem(choice, -1);  // nothing selected
    EXPECT_EQ(stored, (std::vector<std::string>{"vocal", "flat"}));
}

TEST(SettingsRowDisplayTest, ValuesShowInTheRowsFormatOrAsPlainNumbers) {
    SettingsRow::Slider slider{"Opacity", 0, 1, 0.1, nullptr, nullptr, nullptr};
    EXPECT_EQ(valueText(slider, 0.5), "0.5");
    EXPECT_EQ(valueText(slider, 12.0), "12") << "no trailing zeros";
    EXPECT_EQ(valueText(slider, 1.0 / 3), "0.333333");
    slider.format = [](double value) {
        return std::to_string(static_cast<int>(value * 100)) + " %";
    };
    EXPECT_EQ(valueText(slider, 0.5), "50 %");

    SettingsRow::Stepper stepper{"Count", -5, 5, 1, nullptr, nullptr, nullptr};
    EXPECT_EQ(valueText(stepper, -3), "-3");
    stepper.format = [](std::int64_t value) { return std::to_string(value) + " s"; };
    EXPECT_EQ(valueText(stepper, 4), "4 s");
}

TEST(SettingsRowDisplayTest, ListLinesNameTheirEntryAndRemoveThatEntry) {
    std::vector<std::string> removedApps;
    SettingsRow::AppList apps;
    apps.items = [] {
        return std::vector<SettingsRow::AppEntry>{{"com.example.mail", "Mail"},
                                                  {"com.example.gone", ""}};
    };
    apps.remove = [&](const std::string& bundleID) { removedApps.push_back(bundleID); };
    auto lines = listLines(apps);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].title, "Mail");
    EXPECT_EQ(lines[1].title, "com.example.gone") << "an app without a name shows its identifier";
    lines[1].remove();
    EXPECT_EQ(removedApps, (std::vector<std::string>{"com.example.gone"}));

    std::vector<std::size_t> removedItems;
    SettingsRow::ItemList items;
    items.items = [] { return std::vector<std::string>{"first", "second", "third"}; };
    items.remove = [&](std::size_t index) { removedItems.push_back(index); };
    lines = listLines(items);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[2].title, "third");
    lines[2].remove();
    lines[0].remove();
    EXPECT_EQ(removedItems, (std::vector<std::size_t>{2, 0}));

    const ListDisplay display = listDisplay(items);
    items.items = [] { return std::vector<std::string>{"only"}; };
    EXPECT_EQ(display.lines().size(), 1u) << "a drawn list reads the row's items when refreshed";
    items.remove = nullptr;
    EXPECT_FALSE(listLines(items)[0].remove) << "fixed lists show no remove buttons";
    EXPECT_TRUE(listLines(SettingsRow::ItemList{}).empty());

    items.remove = [&](std::size_t index) { removedItems.push_back(index); };
    const ViewNode drawn = listLinesView(display, 300);
    const ViewNode* minus = findNode(drawn, ViewNode::Kind::button, "−");
    ASSERT_NE(minus, nullptr);
    EXPECT_TRUE(minus->actsLater) << "the button goes away with its line";
    items.items = [] { return std::vector<std::string>{}; };
    items.emptyText = "Nothing yet.";
    EXPECT_EQ(shownTexts(listLinesView(listDisplay(items), 300)),
              (std::vector<std::string>{"Nothing yet."}));
}

TEST(SettingsRowDisplayTest, HeadingsFootersAndHelpShowOnlyWhenGiven) {
    SettingsRow::Toggle toggle{"Show seconds", {}, {}, ""};
    EXPECT_TRUE(toggleHelp(toggle, 300).empty());
    toggle.help = "Uses a little more power.";
    EXPECT_EQ(toggleHelp(toggle, 300).at(0).text, toggle.help);

    SettingsSection section{"Mail", {}, "", "/Applications/Mail.app"};
    EXPECT_EQ(shownTexts(ViewNode::column(0, sectionHeading(section))),
              (std::vector<std::string>{"/Applications/Mail.app", "Mail"}));
    EXPECT_TRUE(sectionFooter(section, 300).empty());
    section.iconFile.clear();
    section.footer = "Applies to new windows.";
    EXPECT_EQ(sectionHeading(section).at(0).kind, ViewNode::Kind::heading);
    EXPECT_EQ(sectionFooter(section, 300).at(0).text, section.footer);
    EXPECT_TRUE(sectionHeading(SettingsSection{}).empty());
}

TEST(SettingsRowDisplayTest, EntriesMoveOnlyWithinTheList) {
    EXPECT_EQ(moveTarget(0, 3, -1), std::nullopt);
    EXPECT_EQ(moveTarget(0, 3, 1), 1u);
    EXPECT_EQ(moveTarget(2, 3, -1), 1u);
    EXPECT_EQ(moveTarget(2, 3, 1), std::nullopt);
    EXPECT_EQ(moveTarget(0, 1, 1), std::nullopt) << "a lone entry stays";
    EXPECT_EQ(moveTarget(3, 3, -1), std::nullopt) << "an entry that is gone does not move";
}

TEST(SettingsRowDisplayTest, EditableLinesActOnTheirOwnEntry) {
    std::vector<std::string> calls;
    SettingsRow::EditableList list;
    list.setKey = [&](std::size_t index, const std::string& text) {
        calls.push_back("key " + std::to_string(index) + " " + text);
    };
    list.remove = [&](std::size_t index) { calls.push_back("remove " + std::to_string(index)); };
    auto first = editableLineActions(list, 0, 3);
    EXPECT_TRUE(first.moves.empty()) << "a list in a fixed order shows no move buttons";
    first.setKey("a");
    first.setValue("no binding, no call");
    editableLineActions(list, 2, 3).remove();

    list.move = [&](std::size_t from, std::size_t to) {
        calls.push_back("move " + std::to_string(from) + " " + std::to_string(to));
    };
    first = editableLineActions(list, 0, 3);
    ASSERT_EQ(first.moves.size(), 2u);
    EXPECT_FALSE(first.moves[0].action) << "the first entry cannot move up";
    first.moves[1].action();
    const auto last = editableLineActions(list, 2, 3);
    EXPECT_FALSE(last.moves[1].action) << "the last entry cannot move down";
    last.moves[0].action();
    EXPECT_EQ(calls, (std::vector<std::string>{"key 0 a", "remove 2", "move 0 1", "move 2 1"}));
    EXPECT_TRUE(editableEntries(list).empty());
}

}  // namespace
}  // namespace quorvane
