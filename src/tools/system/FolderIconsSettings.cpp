#include "tools/system/FolderIconsTool.hpp"

#include "tools/system/FolderIconStyle.hpp"

namespace quorvane {

SettingsPage FolderIconsTool::settingsPage() {
    SettingsSection section{"Folders", {}, ""};
    SettingsRow::EditableList list;
    list.keyPlaceholder = "/Users/you/Projects";
    list.valuePlaceholder = "blue 🎵";
    list.removeSymbol = "minus.circle";
    list.addTitle = "Add Folder";
    list.entries = [this] {
        std::vector<SettingsRow::EditableEntry> entries;
        for (const auto& folder : folders_) {
            entries.push_back({folder.path, folder.style, warning(folder.path)});
        }
        return entries;
    };
    list.setKey = [this](std::size_t index, const std::string& path) { setPath(index, path); };
    list.setValue = [this](std::size_t index, const std::string& style) { setStyle(index, style); };
    list.remove = [this](std::size_t index) { removeFolder(index); };
    list.add = [this] { addFolder({}); };
    section.rows.push_back({std::move(list), {}});

    std::string colours;
    for (const auto& entry : FolderIconStyle::palette()) {
        colours += (colours.empty() ? "" : ", ") + std::string(entry.name);
    }
    section.rows.push_back(
        {SettingsRow::Note{
             "Give each folder a colour (" + colours +
             ", or #RRGGBB), an emoji or a few letters for its front, or both: "
             "\"green 📸\". Folders that already have an icon of their own are left "
             "alone. Turning this off gives every folder its usual icon back."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
