#include "tools/windows/PinWindowTool.hpp"

namespace quorvane {

SettingsPage PinWindowTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Press the shortcut, or click Pin Window in the menu, to keep the window you are "
             "using above all others. Do it again on that window to let it go. One window is "
             "pinned at a time; turning the tool off lets it go too."},
         {}});
    main.rows.push_back(shortcut_.row("Pin or unpin the front window"));
    main.rows.push_back(
        {SettingsRow::Note{
             "macOS offers apps no public way to raise another app's window above the rest. "
             "Where this Mac refuses, the window is left as it is and the reason shows below."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
