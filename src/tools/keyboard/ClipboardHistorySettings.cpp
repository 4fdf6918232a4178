#include <algorithm>
#include <array>

#include "platform/Workspace.hpp"
#include "tools/keyboard/ClipboardHistoryTool.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

namespace {

constexpr std::array<int, 6> kMaxItemsChoices = {10, 25, 50, 100, 200, 500};

}  // namespace

SettingsPage ClipboardHistoryTool::settingsPage() {
    SettingsSection general{"", {}, ""};
    general.rows.push_back(shortcut_.row("Show clipboard history"));

    SettingsRow::Choice copies;
    copies.label = "Copies remembered";
    for (const int count : kMaxItemsChoices) {
        copies.options.push_back({std::to_string(count), std::to_string(count)});
    }
    if (std::find(kMaxItemsChoices.begin(), kMaxItemsChoices.end(), static_cast<int>(maxItems())) ==
        kMaxItemsChoices.end()) {
        // A count stored by hand stays choosable rather than silently shown as another.
        copies.options.push_back({std::to_string(maxItems()), std::to_string(maxItems())});
    }
    copies.get = [this] { return std::to_string(maxItems()); };
    copies.set = [this](const std::string& value) {
        try {
            setMaxItems(static_cast<std::size_t>(std::stoul(value)));
        } catch (const std::exception&) {
            // Only the offered values come here.
        }
    };
    general.rows.push_back({std::move(copies), {}});

    SettingsRow::Choice trigger;
    trigger.label = "Open at the pointer";
    for (const auto choice : {MouseTrigger::command, MouseTrigger::shift,
                              MouseTrigger::controlOption, MouseTrigger::off}) {
        trigger.options.push_back({rawValue(choice), label(choice)});
    }
    trigger.get = [this] { return std::string(rawValue(mouseTrigger_)); };
    trigger.set = [this](const std::string& value) { setMouseTrigger(mouseTriggerFrom(value)); };
    general.rows.push_back({std::move(trigger), {}});

    general.rows.push_back(
        {SettingsRow::Toggle{"Keep history after restarting", [this] { return remembers_; },
                             [this](bool on) { setRemembersAfterRestart(on); },
                             "Saved only on this Mac. Turn off to start with an "
                             "empty list each time."},
         {}});
    general.rows.push_back(SettingsRow::errorWarning(lastError_));

    SettingsSection excluded{"", {}, ""};
    excluded.rows.push_back(
        {SettingsRow::AppList{kNeverRemember,
                              [this] { return appEntries(platform_.workspace, ignoredApps_); },
                              [this](const std::string& bundleID) { ignoreApp(bundleID); },
                              [this](const std::string& bundleID) { rememberApp(bundleID); }, ""},
         {}});
    excluded.rows.push_back(
        {SettingsRow::Note{
             "Right-clicking with the key held opens the list where you clicked, and in a text "
             "box the copy you pick is pasted right there. A normal right-click still shows the "
             "usual menu. In the list: ↑↓ to choose, ↩ to paste, ⌥↩ to paste as plain text, "
             "⌘1–9 to paste one of the first nine, ⌘⌫ to remove one, or just type to search. "
             "⌘⇧V means Paste and Match Style in a few apps; while this is on, use ⌥↩ in the "
             "list for that, or pick another shortcut."},
         {}});
    excluded.rows.push_back(
        {SettingsRow::Note{
             "1Password, Bitwarden, KeePassXC, Passwords, Keychain Access and other password "
             "manager apps are always skipped, as are copies any app marks as private. A "
             "password copied from a browser extension is removed when the extension clears "
             "the clipboard; for the safest setup, turn on clearing the clipboard in your "
             "password manager's settings."},
         {}});

    SettingsPage page;
    page.add(std::move(general));
    page.add(std::move(excluded));
    return page;
}

std::optional<ToolControl> ClipboardHistoryTool::control() {
    return ToolControl{
        kShowCommand, descriptor_.identity.systemImage, {}, [this] { showFromMenu(); }};
}

}  // namespace quorvane
