#include "tools/windows/WindowLayoutsTool.hpp"

#include <iterator>

namespace quorvane {

SettingsPage WindowLayoutsTool::settingsPage() {
    SettingsSection save{"", {}, ""};
    save.rows.push_back(
        {SettingsRow::Note{
             "Save where your windows are now under a name. Restoring it opens the apps that "
             "are not running and puts each window back as it appears."},
         {}});
    save.rows.push_back({SettingsRow::TextField{"Layout name", "Writing", [this] { return draft_; },
                                                [this](const std::string& text) { draft_ = text; }},
                         {}});
    save.rows.push_back(
        {SettingsRow::Button{"Save Current Layout", [this] { this->save(draft_); }}, {}});
    save.rows.push_back(
        {SettingsRow::Note{
             "Windows are told apart by their titles. Closed windows are not reopened, tabs "
             "are not rearranged, and windows stay on the desktop (Space) they are on. Apps "
             "that reopen their windows slowly may need a second Restore."},
         {}});

    SettingsSection saved{"", {}, ""};
    saved.rows.push_back(
        {SettingsRow::ItemList{
             "Saved layouts",
             [this] {
                 std::vector<std::string> names;
                 for (const auto& [name, layout] : layouts_.all()) {
                     names.push_back(name + " · " + std::to_string(layout.windows.size()) +
                                     (layout.windows.size() == 1 ? " window" : " windows"));
                 }
                 return names;
             },
             [this](std::size_t index) {
                 if (index < layouts_.all().size()) {
                     remove(std::next(layouts_.all().begin(), static_cast<std::ptrdiff_t>(index))
                                ->first);
                 }
             },
             "No layouts yet."},
         {}});
    for (const auto& entry : layouts_.all()) {
        const std::string name = entry.first;
        saved.rows.push_back(
            {SettingsRow::Button{"Restore “" + name + "”", [this, name] { restore(name); }}, {}});
    }
    saved.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(save)).add(std::move(saved));
    return page;
}

}  // namespace quorvane
