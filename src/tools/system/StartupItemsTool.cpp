#include "tools/system/StartupItemsTool.hpp"

#include "app/ToolRegistry.hpp"
#include "platform/FileSystem.hpp"
#include "platform/Preferences.hpp"
#include "tools/system/StartupItems.hpp"

namespace quorvane {

StartupItemsTool::StartupItemsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

void StartupItemsTool::stop() {
    // The registry also stops every tool when Quorvane quits; the user's choices stay then,
    // and are undone only when the user turns the tool off.
    if (!platform_.preferences.boolean(ToolRegistry::enabledKey(id())).value_or(false)) {
        tidy();
    }
    items_.clear();
    publish();
}

void StartupItemsTool::tidy() {
    const std::string home = platform_.fileSystem.homeDirectory();
    std::string failures;
    for (const auto& item : StartupItems::list(platform_.fileSystem, home)) {
        if (item.isUsers() && item.disabled) {
            const std::string error =
                StartupItems::setEnabled(platform_.fileSystem, home, item, true);
            failures += error.empty() ? "" : (failures.empty() ? "" : "; ") + error;
        }
    }
    lastError_ = failures;
}

void StartupItemsTool::reload() {
    items_ = StartupItems::list(platform_.fileSystem, platform_.fileSystem.homeDirectory());
    publish();
}

bool StartupItemsTool::setEnabled(const std::string& label, bool enabled) {
    for (const auto& item : items_) {
        if (item.label == label) {
            lastError_ = StartupItems::setEnabled(
                platform_.fileSystem, platform_.fileSystem.homeDirectory(), item, enabled);
            reload();
            return lastError_.empty();
        }
    }
    lastError_ = "There is no startup item " + label + ".";
    publish();
    return false;
}

SettingsPage StartupItemsTool::settingsPage() {
    SettingsSection own{"Your Startup Items", {}, ""};
    SettingsSection shared{"For All Users", {}, ""};
    for (const auto& item : items_) {
        const std::string detail = item.problem.empty()
                                       ? item.program
                                       : "this item's list is damaged (" + item.problem + ")";
        if (item.isUsers()) {
            const std::string label = item.label;
            own.rows.push_back(
                {SettingsRow::Toggle{label,
                                     [this, label] {
                                         for (const auto& current : items_) {
                                             if (current.label == label) {
                                                 return !current.disabled;
                                             }
                                         }
                                         return false;
                                     },
                                     [this, label](bool on) { setEnabled(label, on); }, detail},
                 {}});
        }
    }
    shared.rows.push_back(
        {SettingsRow::ItemList{"",
                               [this] {
                                   std::vector<std::string> lines;
                                   for (const auto& item : items_) {
                                       if (!item.isUsers()) {
                                           lines.push_back(
                                               item.label + (item.disabled ? " (off)" : "") +
                                               (item.program.empty() ? "" : "  " + item.program));
                                       }
                                   }
                                   return lines;
                               },
                               {},
                               "None."},
         {}});
    own.rows.push_back(
        {SettingsRow::Note{
             "Switching an item off moves its file out of LaunchAgents, so it no "
             "longer starts from the next login; switching it on, or turning this tool off, puts "
             "it back. "
             "Items of macOS itself are not shown. Items for all users need an "
             "administrator to change. Quorvane's own start at login is in "
             "General settings."},
         {}});
    own.rows.push_back({SettingsRow::Button{"Reload", [this] { reload(); }}, {}});
    own.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(own));
    page.add(std::move(shared));
    return page;
}

}  // namespace quorvane
