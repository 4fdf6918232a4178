#include "tools/windows/StopFocusStealingTool.hpp"

#include <array>

#include "platform/Workspace.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

namespace {

constexpr std::array<int, 5> kGraceChoices = {5, 10, 15, 30, 60};

}  // namespace

SettingsPage StopFocusStealingTool::settingsPage() {
    SettingsSection behaviour{"", {}, ""};
    behaviour.rows.push_back(
        {SettingsRow::Note{"Switching apps yourself always works: clicking, ⌘Tab, the Dock, "
                           "Spotlight and keyboard shortcuts. Password prompts and other system "
                           "dialogs are never blocked."},
         {}});
    behaviour.rows.push_back(
        {SettingsRow::Toggle{"Show a notice when an app is stopped", [this] { return showNotice_; },
                             [this](bool on) { setShowNotice(on); }, ""},
         {}});
    SettingsRow::Choice grace{"Apps you open may come forward for", {}, nullptr, nullptr};
    for (const int seconds : kGraceChoices) {
        grace.options.push_back({std::to_string(seconds), std::to_string(seconds) + " seconds"});
    }
    grace.get = [this] { return std::to_string(static_cast<int>(launchGracePeriod_)); };
    grace.set = [this](const std::string& value) {
        for (const int seconds : kGraceChoices) {
            if (value == std::to_string(seconds)) {
                setLaunchGracePeriod(seconds);
            }
        }
    };
    behaviour.rows.push_back({std::move(grace), {}});

    SettingsSection allowed{
        "", {}, "For example, a calendar app whose reminders you never want to miss."};
    allowed.rows.push_back(
        {SettingsRow::AppList{"Always allow these apps to come forward",
                              [this] { return appEntries(platform_.workspace, allowedBundleIDs_); },
                              [this](const std::string& bundleID) { allow(bundleID); },
                              [this](const std::string& bundleID) { disallow(bundleID); }, ""},
         {}});

    SettingsSection stopped{
        "",
        {},
        "Background helpers (for mice, printers, VPNs, updaters) are the most common culprits. If "
        "one keeps showing up, consider removing it or turning it off in its own settings."};
    stopped.rows.push_back({SettingsRow::Custom{"Stopped this session",
                                                [this] {
                                                    return "Stopped this session: " +
                                                           std::to_string(stoppedThisSession_);
                                                }},
                            {}});
    stopped.rows.push_back(
        {SettingsRow::ItemList{
             "Recently stopped",
             [this] {
                 std::vector<std::string> lines;
                 for (const auto& event : history_.events()) {
                     lines.push_back((event.isBackground ? "Background helper · " : "") +
                                     event.appName);
                 }
                 return lines;
             },
             // "Remove from the list" on each row.
             [this](std::size_t index) {
                 if (index < history_.events().size()) {
                     removeFromHistory(history_.events()[index].id);
                 }
             },
             "Nothing stopped yet. When an app tries to take over, it shows up here, so you can "
             "see which one it was."},
         {}});

    SettingsPage page;
    page.add(std::move(behaviour)).add(std::move(allowed)).add(std::move(stopped));
    return page;
}

}  // namespace quorvane
