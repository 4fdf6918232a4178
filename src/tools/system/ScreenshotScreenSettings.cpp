#include "tools/system/ScreenshotScreenTool.hpp"

namespace quorvane {

SettingsPage ScreenshotScreenTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "The shortcut takes a screenshot of only the display the pointer is on, instead "
             "of one file per display. It is saved as PNG where your screenshots go (the "
             "Screenshot Settings tool or the Screenshot app choose that), named like the "
             "system's own."},
         {}});
    main.rows.push_back(shortcut_.row("Screenshot of this display"));
    main.rows.push_back(
        {SettingsRow::Note{
             "macOS keeps ⇧⌘3 for itself and Quorvane cannot take it over: to use ⇧⌘3 here, "
             "turn off \"Save picture of screen as a file\" in System Settings › Keyboard › "
             "Keyboard Shortcuts › Screenshots, or pick another shortcut above. There is no "
             "floating thumbnail to edit the shot."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
