#include "tools/windows/DockPreviewsTool.hpp"

namespace quorvane {

SettingsPage DockPreviewsTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Rest the pointer on an app's icon in the Dock to see its open windows, each with "
             "a small picture. Click one to bring it forward; type to filter them by title."},
         {}});
    main.rows.push_back(
        {SettingsRow::Stepper{"Wait before showing", 0, kMaxDelay, 100, [this] { return delay_; },
                              [this](std::int64_t value) { setDelay(value); },
                              [](std::int64_t value) { return std::to_string(value) + " ms"; }},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Only standard windows that are not minimized are listed, at most eight, front "
             "first; windows on other desktops (Spaces) are listed without a picture. Folders, "
             "stacks and the Trash have no preview."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
