#include <algorithm>

#include "tools/keyboard/KeyRemapTool.hpp"

namespace quorvane {

namespace {

std::vector<SettingsRow::ChoiceOption> keyOptions() {
    std::vector<SettingsRow::ChoiceOption> options;
    for (const auto& key : allKeys()) {
        options.push_back({std::string(key.name), std::string(key.label)});
    }
    return options;
}

}  // namespace

SettingsPage KeyRemapTool::settingsPage() {
    SettingsSection presets{"Presets", {}, ""};
    for (const auto& preset : Preset::all()) {
        presets.rows.push_back(
            {SettingsRow::Button{preset.title, [this, &preset] { addPreset(preset); }}, {}});
    }

    SettingsSection keys{"Remapped keys", {}, ""};
    keys.rows.push_back(
        {SettingsRow::Note{"Choose for each key whether it changes every keyboard, only "
                           "keyboards "
                           "you plug in, or only the MacBook's own. Changes you made in System "
                           "Settings › Keyboard › Modifier Keys are kept alongside these, and "
                           "switching this off leaves just those."},
         {}});
    keys.rows.push_back({SettingsRow::Note{"No keys remapped yet. Start with a preset or add your "
                                           "own."},
                         [this] { return mappings_.empty(); }});
    std::vector<SettingsRow::ChoiceOption> keyboardOptions;
    for (const Keyboards keyboards : {Keyboards::all, Keyboards::external, Keyboards::builtIn}) {
        keyboardOptions.push_back(
            {std::string(rawValue(keyboards)), std::string(title(keyboards))});
    }
    // The page's rows are fixed once it is built; a slot shows while there is a
    // mapping for it.
    const std::size_t slots = std::max(kPickerSlots, mappings_.size());
    for (std::size_t index = 0; index < slots; ++index) {
        const auto shown = [this, index] { return index < mappings_.size(); };
        // Hidden slots may still be read by a renderer; they read a placeholder.
        const auto at = [this, index] {
            return index < mappings_.size() ? mappings_[index] : Mapping{};
        };
        keys.rows.push_back({SettingsRow::Choice{"Key " + std::to_string(index + 1), keyOptions(),
                                                 [at] { return std::string(rawValue(at().from)); },
                                                 [this, at, index](const std::string& raw) {
                                                     if (const auto key = keyFromRawValue(raw)) {
                                                         Mapping mapping = at();
                                                         mapping.from = *key;
                                                         replace(index, mapping);
                                                     }
                                                 }},
                             shown});
        keys.rows.push_back({SettingsRow::Choice{"types", keyOptions(),
                                                 [at] { return std::string(rawValue(at().to)); },
                                                 [this, at, index](const std::string& raw) {
                                                     if (const auto key = keyFromRawValue(raw)) {
                                                         Mapping mapping = at();
                                                         mapping.to = *key;
                                                         replace(index, mapping);
                                                     }
                                                 }},
                             shown});
        keys.rows.push_back(
            {SettingsRow::Choice{"on", keyboardOptions,
                                 [at] { return std::string(rawValue(at().keyboards)); },
                                 [this, at, index](const std::string& raw) {
                                     if (const auto keyboards = keyboardsFromRawValue(raw)) {
                                         Mapping mapping = at();
                                         mapping.keyboards = *keyboards;
                                         replace(index, mapping);
                                     }
                                 }},
             shown});
        keys.rows.push_back({SettingsRow::Button{"Remove",
                                                 [this, index] {
                                                     if (index < mappings_.size()) {
                                                         remove(mappings_[index].id);
                                                     }
                                                 },
                                                 SettingsRow::ButtonRole::destructive},
                             shown});
    }
    keys.rows.push_back(
        {SettingsRow::Button{"Add a Key",
                             [this] {
                                 // The first key not remapped yet, to Escape
                                 // (or Caps Lock for Escape itself).
                                 Key from = Key::capsLock;
                                 for (const auto& key : allKeys()) {
                                     const bool used = std::any_of(
                                         mappings_.begin(), mappings_.end(),
                                         [&](const Mapping& m) { return m.from == key.key; });
                                     if (!used) {
                                         from = key.key;
                                         break;
                                     }
                                 }
                                 add(from, from == Key::escape ? Key::capsLock : Key::escape,
                                     Keyboards::all);
                             }},
         [this, slots] { return mappings_.size() < slots; }});
    // The page outlives many applies; the one message there is stands in the row.
    keys.rows.push_back({SettingsRow::Warning{kRejected}, [this] { return !lastError_.empty(); }});

    SettingsPage page;
    page.add(std::move(presets)).add(std::move(keys));
    return page;
}

}  // namespace quorvane
