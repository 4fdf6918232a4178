#include "tools/keyboard/InputSourcePerAppTool.hpp"

#include "platform/KeyboardLayout.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage InputSourcePerAppTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    std::vector<SettingsRow::ChoiceOption> options{{"", "The language in use"}};
    for (const auto& source : platform_.keyboardLayout.inputSources()) {
        options.push_back({source.id, source.name});
    }
    section.rows.push_back(
        {SettingsRow::Choice{"New apps start with", std::move(options),
                             [this] { return newAppSource_; },
                             [this](const std::string& id) { setNewAppSource(id); }},
         {}});
    section.rows.push_back(
        {SettingsRow::ItemList{
             "Remembered",
             [this] {
                 std::vector<std::string> bundleIDs;
                 for (const auto& [bundleID, id] : memory_.sources()) {
                     bundleIDs.push_back(bundleID);
                 }
                 std::vector<std::string> lines;
                 for (const auto& entry : appEntries(platform_.workspace, bundleIDs)) {
                     lines.push_back(entry.name + ": " +
                                     sourceName(memory_.sources().at(entry.bundleID)));
                 }
                 return lines;
             },
             [this](std::size_t index) {
                 if (index < memory_.sources().size()) {
                     forget(std::next(memory_.sources().begin(), static_cast<long>(index))->first);
                 }
             },
             "Switch to an app and pick a keyboard language: it is remembered for that app."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"When you come back to an app, the keyboard language you last used "
                           "in it is selected again. A language you have since removed from the "
                           "input menu is skipped, and the app keeps the one in use. Some "
                           "Chinese, Japanese and Korean input methods may only switch once you "
                           "click into a text field."},
         {}});
    section.rows.push_back(
        {SettingsRow::Warning{"The remembered languages could not be read; Quorvane leaves them "
                              "as they are and remembers nothing new."},
         [this] { return storeUnreadable_; }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
