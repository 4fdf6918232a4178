#include "ui/SettingsRowDisplay.hpp"

#include <cmath>
#include <variant>

namespace quorvane {

ChoiceDisplay choiceDisplay(const SettingsRow::Choice& choice) {
    const std::string current = choice.get ? choice.get() : std::string();
    ChoiceDisplay display;
    display.optionCount = choice.options.size();
    bool found = false;
    for (std::size_t index = 0; index < choice.options.size(); ++index) {
        display.items.push_back(choice.options[index].title);
        if (!found && choice.options[index].value == current) {
            display.selected = index;
            found = true;
        }
    }
    if (!found) {
        display.items.push_back(current.empty() ? "none" : current);
        display.selected = display.items.size() - 1;
    }
    return display;
}

int tickMarkCount(const SettingsRow::Slider& slider) {
    if (!(slider.step > 0) || !(slider.maximum > slider.minimum)) {
        return 0;
    }
    return static_cast<int>(std::lround((slider.maximum - slider.minimum) / slider.step)) + 1;
}

std::string shortcutText(const SettingsRow::Shortcut& shortcut) {
    const std::string text = shortcut.displayText ? shortcut.displayText() : std::string();
    return text.empty() ? "none" : text;
}

bool showsClearButton(const SettingsRow::Shortcut& shortcut) {
    const bool recording = shortcut.isRecording && shortcut.isRecording();
    return shortcut.clear && shortcut.displayText && !shortcut.displayText().empty() && !recording;
}

void stopRecording(const SettingsPage& page) {
    for (const SettingsSection& section : page.sections) {
        for (const SettingsRow& row : section.rows) {
            if (const auto* shortcut = std::get_if<SettingsRow::Shortcut>(&row.kind);
                shortcut && shortcut->stopRecording) {
                shortcut->stopRecording();
            }
        }
    }
}

}  // namespace quorvane
