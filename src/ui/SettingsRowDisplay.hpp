#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ui/SettingsPage.hpp"
#include "ui/SettingsRow.hpp"

namespace quorvane {

// What every renderer of a settings page shows for a row, decided once so the settings window
// and the command line agree.

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

// The tick marks under a slider that moves in steps, one per reachable value; 0 for a
// continuous slider.
int tickMarkCount(const SettingsRow::Slider& slider);

// The shortcut as text, "none" when no shortcut is set.
std::string shortcutText(const SettingsRow::Shortcut& shortcut);
// Whether the clear button shows: a shortcut is set and the recorder is not listening.
bool showsClearButton(const SettingsRow::Shortcut& shortcut);

// Stops every recorder on the page; the window calls it when it closes or changes page, since
// a listening recorder keeps every global shortcut paused.
void stopRecording(const SettingsPage& page);

}  // namespace quorvane
