#include "tools/keyboard/AppShortcutsTool.hpp"

#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage AppShortcutsTool::settingsPage() {
    SettingsSection apps{"", {}, ""};
    apps.rows.push_back(
        {SettingsRow::AppList{"Apps",
                              [this] { return appEntries(platform_.workspace, this->apps()); },
                              [this](const std::string& bundleID) { addApp(bundleID); },
                              [this](const std::string& bundleID) { removeApp(bundleID); },
                              "Add an app, then record its shortcut below."},
         {}});
    apps.rows.push_back(
        {SettingsRow::Note{"Press an app's shortcut to open it or bring it to the front from "
                           "anywhere; press it again while the app is in front to hide it."},
         {}});
    SettingsSection shortcuts{"Shortcuts", {}, ""};
    for (const auto& entry : appEntries(platform_.workspace, this->apps())) {
        shortcuts.rows.push_back(shortcut(entry.bundleID)->row(entry.name));
    }
    apps.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(apps));
    if (!shortcuts.rows.empty()) {
        page.add(std::move(shortcuts));
    }
    return page;
}

}  // namespace quorvane
