#include "platform/Workspace.hpp"
#include "tools/input/MouseButtonsTool.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage MouseButtonsTool::settingsPage() {
    SettingsSection buttons{"", {}, ""};
    buttons.rows.push_back(
        {SettingsRow::Note{"The side buttons of your mouse go back and forward: button 4 presses "
                           "⌘[ and button 5 presses ⌘], the shortcuts of Safari, Finder and most "
                           "other apps. Other buttons work as before."},
         {}});
    SettingsSection excepted{"",
                             {},
                             "For example, a game or a drawing app that gives the side "
                             "buttons a meaning of its own."};
    excepted.rows.push_back(
        {SettingsRow::AppList{"Leave the side buttons alone in these apps",
                              [this] { return appEntries(platform_.workspace, exceptions_); },
                              [this](const std::string& bundleID) { addException(bundleID); },
                              [this](const std::string& bundleID) { removeException(bundleID); },
                              "No exceptions: the side buttons go back and forward everywhere."},
         {}});
    SettingsPage page;
    page.add(std::move(buttons)).add(std::move(excepted));
    return page;
}

}  // namespace quorvane
