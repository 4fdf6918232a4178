#include "tools/windows/DockInstantSwitchTool.hpp"

namespace quorvane {

SettingsPage DockInstantSwitchTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "With more than one display, the Dock moves to a display when you hold the "
             "pointer at its bottom edge for a while. Quorvane moves it as soon as the pointer "
             "gets there."},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "macOS has no way for apps to move the Dock, so Quorvane imitates the push the "
             "Dock waits for. If a macOS update changes how the Dock listens, the Dock simply "
             "moves after the usual wait and a notice appears here. It does nothing when the "
             "Dock is on the left or right, or with one display."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
