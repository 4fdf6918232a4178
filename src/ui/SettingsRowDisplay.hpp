#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/SettingsPage.hpp"
#include "ui/SettingsRow.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

// What every renderer of a settings page shows for a row, decided once so the settings window
// and the command line agree. A binding the row leaves empty reads as off, the minimum or
// nothing, and writing through it does nothing.

// Rows without a visibility rule always show.
bool isShown(const SettingsRow& row);
bool isOn(const SettingsRow::Toggle& toggle);
// What shows under a toggle's checkbox: its help text, when it has one.
std::vector<ViewNode> toggleHelp(const SettingsRow::Toggle& toggle, double width);

// A choice as a pop-up: the options' titles, then the current value when it matches none of
// them (an equalizer whose gains match no preset shows "Custom"), which is shown selected but
// cannot be chosen.
struct ChoiceDisplay {
    std::vector<std::string> items;
    std::size_t selected = 0;
    std::size_t optionCount = 0;  // items from here on are not options

    const std::string& selectedTitle() const { return items[selected]; }
};
ChoiceDisplay choiceDisplay(const SettingsRow::Choice& choice);
// Stores the option at a pop-up item. The extra item of a value matching no option, and no
// selection at all (-1), store nothing.
void chooseItem(const SettingsRow::Choice& choice, std::ptrdiff_t item);

// The value of a slider or stepper, and its text beside the control: the row's own format, or
// the plain number.
double currentValue(const SettingsRow::Slider& slider);
std::int64_t currentValue(const SettingsRow::Stepper& stepper);
std::string valueText(const SettingsRow::Slider& slider, double value);
// Up to six significant digits, without trailing zeros: 0.5, 12, 1e+06.
std::string plainNumber(double value);
std::string valueText(const SettingsRow::Stepper& stepper, std::int64_t value);
std::string currentText(const SettingsRow::TextField& field);

// The tick marks under a slider that moves in steps, one per reachable value; 0 for a
// continuous slider.
int tickMarkCount(const SettingsRow::Slider& slider);

// The shortcut as text, "none" when no shortcut is set.
std::string shortcutText(const SettingsRow::Shortcut& shortcut);
// Whether the clear button shows: a shortcut is set and the recorder is not listening.
bool showsClearButton(const SettingsRow::Shortcut& shortcut);
bool showsConflict(const SettingsRow::Shortcut& shortcut);
// The recorder button's title: the row's own, or the recorder's invitation when it has none.
std::string recorderTitle(const SettingsRow::Shortcut& shortcut);

// One line of an application or item list, with the action of its remove button; empty when
// entries cannot be removed. An application without a name shows its bundle identifier.
struct ListLine {
    std::string title;
    std::function<void()> remove;
};
std::vector<ListLine> listLines(const SettingsRow::AppList& list);
std::vector<ListLine> listLines(const SettingsRow::ItemList& list);
// Either kind of list as one renderer draws it: its label, the text shown while it is empty,
// and its lines, read again on every refresh. The row must outlive the reader.
struct ListDisplay {
    std::string label;
    std::string emptyText;
    std::function<std::vector<ListLine>()> lines;
};
ListDisplay listDisplay(const SettingsRow::AppList& list);
ListDisplay listDisplay(const SettingsRow::ItemList& list);
// The list's lines as they are now, `width` wide: each with a "−" button when it can be
// removed, or the empty text.
ViewNode listLinesView(const ListDisplay& list, double width);

// What comes before a section's rows and after them: its title, with the icon when it has
// one, and its footer; nothing for what it leaves empty.
std::vector<ViewNode> sectionHeading(const SettingsSection& section);
std::vector<ViewNode> sectionFooter(const SettingsSection& section, double width);

// Where an editable list's entry goes when moved `offset` places; nothing past either end.
std::optional<std::size_t> moveTarget(std::size_t index, std::size_t count, int offset);

// An editable list's entries; none when the list has no binding for them.
std::vector<SettingsRow::EditableEntry> editableEntries(const SettingsRow::EditableList& list);
// A move button of an editable list's line; its action is empty, and the button disabled, when
// the entry is already at that end.
struct EditableMove {
    std::string title;
    std::function<void()> action;
};
// The controls of the line at `index` of `count` entries, bound to that place. Each works on
// a binding the list leaves empty by doing nothing. No move buttons when the order is fixed.
struct EditableLineActions {
    std::function<void(const std::string&)> setKey;
    std::function<void(const std::string&)> setValue;
    std::function<void()> remove;
    std::vector<EditableMove> moves;
};
EditableLineActions editableLineActions(const SettingsRow::EditableList& list, std::size_t index,
                                        std::size_t count);

// What a renderer that cannot draw a custom row shows in its place.
std::string customText(const SettingsRow::Custom& custom);

// Stops every recorder on the page; the window calls it when it closes or changes page, since
// a listening recorder keeps every global shortcut paused.
void stopRecording(const SettingsPage& page);

}  // namespace quorvane
