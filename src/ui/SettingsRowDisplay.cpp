#include "ui/SettingsRowDisplay.hpp"

#include <cmath>
#include <sstream>
#include <utility>
#include <variant>

#include "base/CallIfSet.hpp"
#include "input/ShortcutRecorder.hpp"

namespace quorvane {

bool isShown(const SettingsRow& row) {
    return !row.isVisible || row.isVisible();
}

bool isOn(const SettingsRow::Toggle& toggle) {
    return toggle.get && toggle.get();
}

std::vector<ViewNode> toggleHelp(const SettingsRow::Toggle& toggle, double width) {
    if (toggle.help.empty()) {
        return {};
    }
    return {ViewNode::secondaryLabel(toggle.help, width)};
}

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

void chooseItem(const SettingsRow::Choice& choice, std::ptrdiff_t item) {
    if (choice.set && item >= 0 && static_cast<std::size_t>(item) < choice.options.size()) {
        choice.set(choice.options[static_cast<std::size_t>(item)].value);
    }
}

double currentValue(const SettingsRow::Slider& slider) {
    return slider.get ? slider.get() : slider.minimum;
}

std::int64_t currentValue(const SettingsRow::Stepper& stepper) {
    return stepper.get ? stepper.get() : stepper.minimum;
}

std::string valueText(const SettingsRow::Slider& slider, double value) {
    return slider.format ? slider.format(value) : plainNumber(value);
}

std::string plainNumber(double value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string valueText(const SettingsRow::Stepper& stepper, std::int64_t value) {
    return stepper.format ? stepper.format(value) : std::to_string(value);
}

std::string currentText(const SettingsRow::TextField& field) {
    return field.get ? field.get() : std::string();
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

bool showsConflict(const SettingsRow::Shortcut& shortcut) {
    return shortcut.hasConflict && shortcut.hasConflict();
}

std::string recorderTitle(const SettingsRow::Shortcut& shortcut) {
    return shortcut.buttonTitle ? shortcut.buttonTitle() : ShortcutRecorder::kEmptyTitle;
}

std::vector<ListLine> listLines(const SettingsRow::AppList& list) {
    std::vector<ListLine> lines;
    for (const auto& app : list.items ? list.items() : std::vector<SettingsRow::AppEntry>{}) {
        ListLine line{app.name.empty() ? app.bundleID : app.name, nullptr};
        if (list.remove) {
            line.remove = [remove = list.remove, bundleID = app.bundleID] { remove(bundleID); };
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<ListLine> listLines(const SettingsRow::ItemList& list) {
    std::vector<ListLine> lines;
    const auto items = list.items ? list.items() : std::vector<std::string>{};
    for (std::size_t index = 0; index < items.size(); ++index) {
        ListLine line{items[index], nullptr};
        if (list.remove) {
            line.remove = [remove = list.remove, index] { remove(index); };
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

ListDisplay listDisplay(const SettingsRow::AppList& list) {
    return {list.label, list.emptyText, [&list] { return listLines(list); }};
}

ListDisplay listDisplay(const SettingsRow::ItemList& list) {
    return {list.label, list.emptyText, [&list] { return listLines(list); }};
}

ViewNode listLinesView(const ListDisplay& list, double width) {
    ViewNode column = ViewNode::column(2);
    const auto lines = list.lines ? list.lines() : std::vector<ListLine>{};
    if (lines.empty()) {
        column.children.push_back(ViewNode::secondaryLabel(list.emptyText, width));
    }
    for (const auto& line : lines) {
        ViewNode shown = ViewNode::row(6, {ViewNode::label(line.title)});
        if (line.remove) {
            ViewNode remove = ViewNode::button("−", line.remove);
            remove.actsLater = true;
            shown.children.push_back(std::move(remove));
        }
        column.children.push_back(std::move(shown));
    }
    return column;
}

std::vector<ViewNode> sectionHeading(const SettingsSection& section) {
    if (!section.iconFile.empty()) {
        return {ViewNode::row(
            6, {ViewNode::fileIcon(section.iconFile, 16), ViewNode::heading(section.title, 13)})};
    }
    if (!section.title.empty()) {
        return {ViewNode::heading(section.title, 13)};
    }
    return {};
}

std::vector<ViewNode> sectionFooter(const SettingsSection& section, double width) {
    if (section.footer.empty()) {
        return {};
    }
    return {ViewNode::secondaryLabel(section.footer, width)};
}

std::optional<std::size_t> moveTarget(std::size_t index, std::size_t count, int offset) {
    const auto target = static_cast<std::ptrdiff_t>(index) + offset;
    if (index >= count || target < 0 || static_cast<std::size_t>(target) >= count) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(target);
}

std::vector<SettingsRow::EditableEntry> editableEntries(const SettingsRow::EditableList& list) {
    return list.entries ? list.entries() : std::vector<SettingsRow::EditableEntry>{};
}

EditableLineActions editableLineActions(const SettingsRow::EditableList& list, std::size_t index,
                                        std::size_t count) {
    EditableLineActions actions{
        [set = list.setKey, index](const std::string& text) { callIfSet(set, index, text); },
        [set = list.setValue, index](const std::string& text) { callIfSet(set, index, text); },
        [remove = list.remove, index] { callIfSet(remove, index); },
        {},
    };
    if (!list.move) {
        return actions;
    }
    for (const auto& [title, offset] : {std::pair{"↑", -1}, std::pair{"↓", 1}}) {
        EditableMove move{title, nullptr};
        if (const auto target = moveTarget(index, count, offset)) {
            move.action = [moveEntry = list.move, index, to = *target] { moveEntry(index, to); };
        }
        actions.moves.push_back(std::move(move));
    }
    return actions;
}

std::string customText(const SettingsRow::Custom& custom) {
    return custom.summary ? custom.summary() : custom.name;
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
