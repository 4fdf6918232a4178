#include "tools/windows/WindowSwitcherTool.hpp"

namespace quorvane {

SettingsPage WindowSwitcherTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Hold ⌥ and press ⇥ to go through your windows, most recent first; ⇧⇥ goes back. "
             "Let go of ⌥ to bring the chosen window forward, or press Esc to stay where you "
             "are. Every window counts, so two windows of one app are two stops."},
         {}});
    main.rows.push_back(shortcut_.row("Switch windows"));
    main.rows.push_back(
        {SettingsRow::Note{
             "Each window shows a picture taken through Screen Recording; a window that cannot "
             "be captured shows a plain symbol instead. Minimized windows and windows on other "
             "desktops (Spaces) are left out."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
