#include "cli/SettingsTextRenderer.hpp"

#include <cmath>
#include <cstddef>

#include "base/Overloaded.hpp"
#include "ui/SettingsRowDisplay.hpp"

namespace quorvane {

namespace {

// An empty list or field still prints something, so a line never ends in a bare colon.
std::string orNone(const std::string& text) {
    return text.empty() ? "none" : text;
}

std::string joined(const std::vector<std::string>& items, const char* separator) {
    std::string result;
    for (const auto& item : items) {
        result += (result.empty() ? "" : separator) + item;
    }
    return result;
}

}  // namespace

std::string SettingsTextRenderer::renderRow(const SettingsRow& row) {
    using R = SettingsRow;
    return std::visit(
        Overloaded{
            [](const R::Toggle& t) {
                return "[" + std::string(isOn(t) ? "x" : " ") + "] " + t.label +
                       (t.help.empty() ? "" : "\n    " + t.help);
            },
            [](const R::Choice& c) {
                const ChoiceDisplay display = choiceDisplay(c);
                const std::vector<std::string> options(
                    display.items.begin(),
                    display.items.begin() + static_cast<std::ptrdiff_t>(display.optionCount));
                return c.label + ": " + display.selectedTitle() + "  (" + joined(options, " | ") +
                       ")";
            },
            [](const R::Slider& s) {
                return s.label + ": " + valueText(s, currentValue(s)) + "  (" +
                       plainNumber(s.minimum) + " to " + plainNumber(s.maximum) + ")";
            },
            [](const R::Stepper& s) {
                return s.label + ": " + valueText(s, currentValue(s)) + "  (" +
                       std::to_string(s.minimum) + " to " + std::to_string(s.maximum) + ")";
            },
            [](const R::TextField& t) {
                const std::string value = t.get();
                return t.label + ": " +
                       (value.empty() ? "(" + orNone(t.placeholder) + ")" : "\"" + value + "\"");
            },
            [](const R::Shortcut& s) {
                std::string line = s.label + ": " + shortcutText(s);
                if (showsConflict(s)) {
                    line += "\n    ! " + s.conflictNotice;
                }
                return line;
            },
            [](const R::AppList& a) {
                std::vector<std::string> names;
                for (const auto& app : a.items()) {
                    names.push_back(app.name.empty() ? app.bundleID
                                                     : app.name + " (" + app.bundleID + ")");
                }
                return a.label + ": " + (names.empty() ? orNone(a.emptyText) : joined(names, ", "));
            },
            [](const R::ItemList& l) {
                const auto items = l.items();
                std::string text = l.label + ":";
                if (items.empty()) {
                    return text + " " + orNone(l.emptyText);
                }
                for (const auto& item : items) {
                    text += "\n    - " + item;
                }
                return text;
            },
            [](const R::EditableList& l) {
                std::string text;
                for (const auto& entry : l.entries()) {
                    text += (entry.key.empty() ? "(" + orNone(l.keyPlaceholder) + ")" : entry.key) +
                            " → " + (entry.value.empty() ? "(none)" : "\"" + entry.value + "\"") +
                            "\n";
                    if (!entry.warning.empty()) {
                        text += "    ! " + entry.warning + "\n";
                    }
                }
                return text + "[" + l.addTitle + "]";
            },
            [](const R::Note& n) { return n.text; },
            [](const R::Warning& w) { return "! " + w.current(); },
            [](const R::Button& b) { return "[" + b.title + "]"; },
            [](const R::Custom& c) { return customText(c); },
        },
        row.kind);
}

std::string SettingsTextRenderer::render(const SettingsPage& page) {
    std::string text;
    for (const auto& section : page.sections) {
        if (!text.empty()) {
            text += "\n";
        }
        if (!section.title.empty()) {
            text += section.title + "\n";
        }
        for (const auto& row : section.rows) {
            if (!isShown(row)) {
                continue;
            }
            std::string rendered = renderRow(row);
            // Indent continuation lines along with the row.
            std::string indented = "  ";
            for (const char c : rendered) {
                indented += c;
                if (c == '\n') {
                    indented += "  ";
                }
            }
            text += indented + "\n";
        }
        if (!section.footer.empty()) {
            text += "  " + section.footer + "\n";
        }
    }
    return text;
}

}  // namespace quorvane
