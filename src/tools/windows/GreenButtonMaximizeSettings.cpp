#include "tools/windows/GreenButtonMaximizeTool.hpp"

namespace quorvane {

SettingsPage GreenButtonMaximizeTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Clicking a window's green button makes it fill the screen it is on, leaving the "
             "menu bar and the Dock visible. Clicking it again puts the window back where it "
             "was. Hold ⌥ while clicking for the usual full screen."},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Windows that cannot be resized, and apps that draw their own buttons (some games "
             "and web-based apps), are left alone. Full screen from the View menu or with "
             "⌃⌘F still works as before."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
