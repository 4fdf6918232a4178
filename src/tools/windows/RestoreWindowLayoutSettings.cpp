#include "tools/windows/RestoreWindowLayoutTool.hpp"

namespace quorvane {

SettingsPage RestoreWindowLayoutTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Quorvane notes where your windows are every half minute, separately for each set "
             "of displays. When a display is connected or disconnected, the windows go back to "
             "where they were the last time you had the same displays."},
         {}});
    main.rows.push_back(
        {SettingsRow::Toggle{"Also restore when your Mac wakes", [this] { return afterWake_; },
                             [this](bool on) { setRestoresAfterWake(on); }, ""},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "It cannot bring back windows of apps you quit, reopen closed windows, or move "
             "windows between desktops (Spaces) or out of full screen. Windows are told apart "
             "by their titles, so two windows of one app with the same title may trade places."},
         {}});
    main.rows.push_back({SettingsRow::Custom{"Saved arrangements",
                                             [this] {
                                                 return "Saved arrangements: " +
                                                        std::to_string(snapshots_.all().size());
                                             }},
                         {}});
    main.rows.push_back({SettingsRow::Button{"Restore Now", [this] { restoreNow(); }}, {}});
    main.rows.push_back(
        {SettingsRow::Button{"Forget Saved Arrangements", [this] { forgetSnapshots(); },
                             SettingsRow::ButtonRole::destructive},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
