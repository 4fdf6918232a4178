#include "tools/windows/QuitOnLastWindowTool.hpp"

#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage QuitOnLastWindowTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "When you close an app's last window, Quorvane asks the app to quit, the same way "
             "⌘Q does: an app with unsaved changes still asks you what to do with them."},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Finder is never quit. Minimizing a window never quits an app, and neither does a "
             "window that closes on its own, without a click or key press from you. Apps whose "
             "only windows are palettes or inspectors count as having nothing open."},
         {}});
    main.rows.push_back(
        {SettingsRow::Toggle{"Show a notice when an app quits", [this] { return showNotice_; },
                             [this](bool on) { setShowsNotice(on); }, ""},
         {}});
    SettingsSection apps{"", {}, "For example, a music player you close to keep it playing."};
    apps.rows.push_back(
        {SettingsRow::AppList{"Never quit these apps",
                              [this] { return appEntries(platform_.workspace, excepted_); },
                              [this](const std::string& bundleID) { except(bundleID); },
                              [this](const std::string& bundleID) { unexcept(bundleID); }, ""},
         {}});
    apps.rows.push_back({SettingsRow::Custom{"Quit this session",
                                             [this] {
                                                 return "Quit this session: " +
                                                        std::to_string(quitThisSession_);
                                             }},
                         {}});
    apps.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main)).add(std::move(apps));
    return page;
}

}  // namespace quorvane
