#include "tools/keyboard/HomeEndTool.hpp"

#include "platform/Workspace.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage HomeEndTool::settingsPage() {
    SettingsSection keys{"", {}, ""};
    keys.rows.push_back(
        {SettingsRow::Note{"Home and End jump to the start and end of the line, as on a Windows "
                           "PC. Hold ⇧ to select as you go, or ⌘ to jump to the start or end of "
                           "the whole document."},
         {}});

    SettingsSection apps{"", {}, ""};
    apps.rows.push_back({SettingsRow::ItemList{"Always left alone",
                                               [] {
                                                   std::vector<std::string> names;
                                                   for (const auto& app : alwaysLeftAlone()) {
                                                       names.emplace_back(app.name);
                                                   }
                                                   return names;
                                               },
                                               nullptr, ""},
                         {}});
    apps.rows.push_back({SettingsRow::Note{"Terminals pass Home and End on to the programs "
                                           "running in them, and remote desktops and virtual "
                                           "machines to the other computer."},
                         {}});
    apps.rows.push_back(
        {SettingsRow::AppList{"Also leave these apps alone",
                              [this] { return appEntries(platform_.workspace, exceptions_); },
                              [this](const std::string& bundleID) { addException(bundleID); },
                              [this](const std::string& bundleID) { removeException(bundleID); },
                              "Every other app gets Home and End like on a PC."},
         {}});

    SettingsPage page;
    page.add(std::move(keys)).add(std::move(apps));
    return page;
}

}  // namespace quorvane
