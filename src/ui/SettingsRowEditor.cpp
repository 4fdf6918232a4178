#include "ui/SettingsRowEditor.hpp"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <vector>

#include "base/Overloaded.hpp"
#include "ui/SettingsRowDisplay.hpp"

namespace quorvane {

namespace {

std::string folded(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return result;
}

// Labels read "Delay:" or "Choose Folder…" in the window; the user types them without.
std::string labelKey(std::string_view label) {
    for (const std::string_view end :
         {std::string_view(":"), std::string_view("…"), std::string_view("...")}) {
        if (label.size() >= end.size() && label.substr(label.size() - end.size()) == end) {
            label.remove_suffix(end.size());
        }
    }
    while (!label.empty() && label.back() == ' ') {
        label.remove_suffix(1);
    }
    return folded(label);
}

std::string labelOf(const SettingsRow& row) {
    return std::visit(Overloaded{
                          [](const SettingsRow::Toggle& r) { return r.label; },
                          [](const SettingsRow::Choice& r) { return r.label; },
                          [](const SettingsRow::Slider& r) { return r.label; },
                          [](const SettingsRow::Stepper& r) { return r.label; },
                          [](const SettingsRow::TextField& r) { return r.label; },
                          [](const SettingsRow::Shortcut& r) { return r.label; },
                          [](const SettingsRow::AppList& r) { return r.label; },
                          [](const SettingsRow::ItemList& r) { return r.label; },
                          [](const auto&) { return std::string(); },
                      },
                      row.kind);
}

std::optional<double> number(std::string_view text) {
    const std::string copy(text);
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(copy.c_str(), &end);
    if (copy.empty() || end != copy.c_str() + copy.size() || errno != 0 || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::int64_t> integer(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || code != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

class Writer {
public:
    Writer(std::string_view value, std::string& error) : value_(value), error_(error) {}

    bool operator()(const SettingsRow::Toggle& row) const {
        const std::string v = folded(value_);
        const bool on = v == "on" || v == "true" || v == "yes" || v == "1";
        if (!on && v != "off" && v != "false" && v != "no" && v != "0") {
            return fail("\"" + row.label + "\" takes on or off");
        }
        return row.set ? (row.set(on), true) : readOnly(row.label);
    }

    bool operator()(const SettingsRow::Choice& row) const {
        std::string options;
        for (const auto& option : row.options) {
            if (option.value == value_ || folded(option.title) == folded(value_)) {
                return row.set ? (row.set(option.value), true) : readOnly(row.label);
            }
            options += (options.empty() ? "" : ", ") + option.title;
        }
        return fail("\"" + row.label + "\" is one of: " + options);
    }

    bool operator()(const SettingsRow::Slider& row) const {
        const auto v = number(value_);
        if (!v || *v < row.minimum || *v > row.maximum) {
            return fail("\"" + row.label + "\" takes a number from " + plainNumber(row.minimum) +
                        " to " + plainNumber(row.maximum));
        }
        return row.set ? (row.set(*v), true) : readOnly(row.label);
    }

    bool operator()(const SettingsRow::Stepper& row) const {
        const auto v = integer(value_);
        const bool onStep = v && row.step > 0 ? (*v - row.minimum) % row.step == 0 : true;
        if (!v || *v < row.minimum || *v > row.maximum || !onStep) {
            return fail("\"" + row.label + "\" takes a whole number from " +
                        std::to_string(row.minimum) + " to " + std::to_string(row.maximum) +
                        (row.step > 1 ? " in steps of " + std::to_string(row.step) : ""));
        }
        return row.set ? (row.set(*v), true) : readOnly(row.label);
    }

    bool operator()(const SettingsRow::TextField& row) const {
        return row.set ? (row.set(std::string(value_)), true) : readOnly(row.label);
    }

    bool operator()(const SettingsRow::AppList& row) const {
        const std::string id(value_.empty() ? value_ : value_.substr(1));
        if (id.empty() || (value_.front() != '+' && value_.front() != '-')) {
            return fail("\"" + row.label + "\" takes +ID to add an app or -ID to remove one");
        }
        const auto& change = value_.front() == '+' ? row.add : row.remove;
        return change ? (change(id), true) : readOnly(row.label);
    }

    template <typename Other>
    bool operator()(const Other&) const {
        return fail("this setting can only be changed in the settings window");
    }

private:
    bool readOnly(const std::string& label) const { return fail("\"" + label + "\" is read-only"); }
    bool fail(std::string text) const {
        error_ = std::move(text);
        return false;
    }

    std::string_view value_;
    std::string& error_;
};

}  // namespace

bool SettingsRowEditor::set(const SettingsPage& page, std::string_view label,
                            std::string_view value, std::string& error) {
    const std::string key = labelKey(label);
    std::vector<const SettingsRow*> matches;
    for (const auto& section : page.sections) {
        for (const auto& row : section.rows) {
            if (!key.empty() && labelKey(labelOf(row)) == key) {
                matches.push_back(&row);
            }
        }
    }
    if (matches.empty()) {
        error = "no setting is labelled \"" + std::string(label) + "\"";
        return false;
    }
    if (matches.size() > 1) {
        error = "more than one setting is labelled \"" + std::string(label) + "\"";
        return false;
    }
    return std::visit(Writer(value, error), matches.front()->kind);
}

}  // namespace quorvane
