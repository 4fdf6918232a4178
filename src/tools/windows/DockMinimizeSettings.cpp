#include "tools/windows/DockMinimizeTool.hpp"

namespace quorvane {

SettingsPage DockMinimizeTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Clicking the Dock icon of the app you are using hides its windows. Click the "
             "icon again to bring them back. Clicks on other apps' icons work as always, and "
             "so do ⌘-click and ⌥-click."},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Apps are hidden (like ⌘H), not minimized into the Dock, so all their windows "
             "come back together. Folders, stacks and the Trash are left to the Dock."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
