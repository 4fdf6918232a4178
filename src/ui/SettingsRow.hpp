#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quorvane {

// One row of a settings page. Rows are data: labels, texts and choice lists are plain values,
// and the bindings to the tool are closures, so the whole page is built and checked without a
// window system. Each platform renders the vocabulary once, generically.
struct SettingsRow {
    struct Toggle {
        std::string label;
        std::function<bool()> get;
        std::function<void(bool)> set;
        std::string help;
    };
    struct ChoiceOption {
        std::string value;  // the stored raw value
        std::string title;
    };
    struct Choice {
        std::string label;
        std::vector<ChoiceOption> options;
        std::function<std::string()> get;
        std::function<void(const std::string&)> set;
    };
    struct Slider {
        std::string label;
        double minimum = 0;
        double maximum = 1;
        double step = 0;  // 0: continuous
        std::function<double()> get;
        std::function<void(double)> set;
        std::function<std::string(double)> format;  // the value as shown beside the slider
    };
    struct Stepper {
        std::string label;
        std::int64_t minimum = 0;
        std::int64_t maximum = 100;
        std::int64_t step = 1;
        std::function<std::int64_t()> get;
        std::function<void(std::int64_t)> set;
        std::function<std::string(std::int64_t)> format;
    };
    struct TextField {
        std::string label;
        std::string placeholder;
        std::function<std::string()> get;
        std::function<void(const std::string&)> set;
    };
    // A global shortcut with its recorder. The display text is empty when no shortcut is set;
    // a conflict notice is shown when the shortcut could not be registered.
    struct Shortcut {
        std::string label;
        std::function<std::string()> displayText;
        std::function<bool()> hasConflict;
        std::string conflictNotice;
        // The recorder: a button titled by buttonTitle ("Record Shortcut", the shortcut, or
        // "Type a shortcut…" while recording) that toggles recording, and a clear button.
        // stopRecording is for the window closing while the recorder listens. restoreDefault
        // is empty when the tool has no default shortcut.
        std::function<bool()> isRecording;
        std::function<std::string()> buttonTitle;
        std::function<void()> toggleRecording;
        std::function<void()> stopRecording;
        std::function<void()> clear;
        std::function<void()> restoreDefault;
        std::string symbol;  // an SF Symbols name shown before the label; empty for none
    };
    struct AppEntry {
        std::string bundleID;
        std::string name;
    };
    // A list of applications the user picks (allowed apps, excluded apps…).
    struct AppList {
        std::string label;
        std::function<std::vector<AppEntry>()> items;
        std::function<void(const std::string& bundleID)> add;
        std::function<void(const std::string& bundleID)> remove;
        std::string emptyText;
    };
    // A list of records shown as one line each, newest first where it matters.
    struct ItemList {
        std::string label;
        std::function<std::vector<std::string>()> items;
        std::function<void(std::size_t index)> remove;  // empty: items cannot be removed
        std::string emptyText;
    };
    struct EditableEntry {
        std::string key;
        std::string value;
        std::string warning;  // shown under the entry; empty for none
    };
    // A list the user edits in place, in the user's own order: each entry a short key field
    // and a value field side by side, a remove button, and a warning under it when it has one;
    // an add button under the list. Entries come and go, so renderers read `entries` again on
    // every refresh.
    struct EditableList {
        std::string keyPlaceholder;
        std::string valuePlaceholder;
        std::string removeSymbol;  // an SF Symbols name
        std::string addTitle;
        std::function<std::vector<EditableEntry>()> entries;
        std::function<void(std::size_t index, const std::string&)> setKey;
        std::function<void(std::size_t index, const std::string&)> setValue;
        std::function<void(std::size_t index)> remove;
        std::function<void()> add;
        // Moves an entry to another place; empty when the order is fixed.
        std::function<void(std::size_t from, std::size_t to)> move;
    };
    struct Note {
        std::string text;
    };
    struct Warning {
        std::string text;
        // When set, read again on every refresh instead of `text`: a warning that comes and
        // goes while the page is open, such as a tool's last error.
        std::function<std::string()> read = {};
        std::string current() const { return read ? read() : text; }
    };
    enum class ButtonRole { normal, destructive };
    struct Button {
        std::string title;
        std::function<void()> action;
        ButtonRole role = ButtonRole::normal;
    };
    // A row that only a tool's own view can draw (the mixer, the equalizer bands). Text
    // renderers print its summary.
    struct Custom {
        std::string name;
        std::function<std::string()> summary;
    };

    using Kind = std::variant<Toggle, Choice, Slider, Stepper, TextField, Shortcut, AppList,
                              ItemList, EditableList, Note, Warning, Button, Custom>;
    Kind kind;
    // Nothing shown when this answers false; an empty function means always shown.
    std::function<bool()> isVisible;

    // A tool's last error as a warning, read when drawn: an error that arrives or changes while
    // the page is open shows at once, and the row is hidden while there is none. `error` must
    // outlive the page, as every binding's object does.
    static SettingsRow errorWarning(const std::string& error) {
        return {Warning{{}, [&error] { return error; }}, [&error] { return !error.empty(); }};
    }
    static SettingsRow errorWarning(const std::optional<std::string>& error) {
        return {Warning{{}, [&error] { return error.value_or(std::string()); }},
                [&error] { return error.has_value() && !error->empty(); }};
    }
    // The row reads the error it is given for as long as the page lives: a temporary would be
    // gone by the first refresh.
    static SettingsRow errorWarning(std::string&&) = delete;
    static SettingsRow errorWarning(std::optional<std::string>&&) = delete;
};

}  // namespace quorvane
