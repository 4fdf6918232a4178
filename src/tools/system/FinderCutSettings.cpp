#include "tools/system/FinderCutTool.hpp"

namespace quorvane {

SettingsPage FinderCutTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Toggle{"Show a notice when files are cut", [this] { return showNotice_; },
                             [this](bool on) { setShowsNotice(on); }, ""},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"In Finder, ⌘X marks the selected files and ⌘V moves them to the "
                           "folder you are in, using Finder's own Move command, so Finder shows "
                           "its progress and Edit ▸ Undo puts them back. While you rename a file "
                           "or type in a search field, ⌘X cuts text as usual. Copying something "
                           "else before pasting cancels the cut. Other apps are not affected."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
