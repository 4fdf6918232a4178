#include "cli/SettingsTextRenderer.hpp"

#include <cmath>
#include <sstream>

#include "base/Overloaded.hpp"

namespace quorvane {

namespace {

std::string plainNumber(double value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

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
                return "[" + std::string(t.get() ? "x" : " ") + "] " + t.label +
                       (t.help.empty() ? "" : "\n    " + t.help);
            },
            [](const R::Choice& c) {
                const std::string current = c.get();
                std::vector<std::string> titles;
                std::string chosen = current;
                for (const auto& option : c.options) {
                    titles.push_back(option.title);
                    if (option.value == current) {
                        chosen = option.title;
                    }
                }
                return c.label + ": " + chosen + "  (" + joined(titles, " | ") + ")";
            },
            [](const R::Slider& s) {
                const double value = s.get();
                return s.label + ": " + (s.format ? s.format(value) : plainNumber(value)) + "  (" +
                       plainNumber(s.minimum) + " to " + plainNumber(s.maximum) + ")";
            },
            [](const R::Stepper& s) {
                const auto value = s.get();
                return s.label + ": " + (s.format ? s.format(value) : std::to_string(value)) +
                       "  (" + std::to_string(s.minimum) + " to " + std::to_string(s.maximum) + ")";
            },
            [](const R::TextField& t) {
                const std::string value = t.get();
                return t.label + ": " +
                       (value.empty() ? "(" + orNone(t.placeholder) + ")" : "\"" + value + "\"");
            },
            [](const R::Shortcut& s) {
                const std::string text = s.displayText();
                std::string line = s.label + ": " + (text.empty() ? "none" : text);
                if (s.hasConflict && s.hasConflict()) {
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
            [](const R::Note& n) { return n.text; },
            [](const R::Warning& w) { return "! " + w.text; },
            [](const R::Button& b) { return "[" + b.title + "]"; },
            [](const R::Custom& c) { return c.summary ? c.summary() : c.name; },
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
            if (row.isVisible && !row.isVisible()) {
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
