#include "tools/keyboard/AppShortcutsTool.hpp"

#include <algorithm>

#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/keyboard/AppShortcutAction.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

AppShortcutsTool::AppShortcutsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    for (const auto& bundleID :
         platform_.preferences.stringArray(kAppsKey).value_or(std::vector<std::string>{})) {
        if (!bundleID.empty() && !shortcut(bundleID)) {
            entries_.push_back({bundleID, makeShortcut(bundleID)});
        }
    }
}

std::unique_ptr<ShortcutSetting> AppShortcutsTool::makeShortcut(const std::string& bundleID) {
    return std::make_unique<ShortcutSetting>(
        platform_, kShortcutKeyPrefix + bundleID, std::nullopt,
        [this, bundleID] { pressed(bundleID); }, [this] { publish(); });
}

void AppShortcutsTool::start() {
    stop();
    running_ = true;
    for (auto& entry : entries_) {
        entry.shortcut->activate();
    }
    publish();
}

void AppShortcutsTool::stop() {
    for (auto& entry : entries_) {
        entry.shortcut->deactivate();
    }
    running_ = false;
    lastError_.clear();
    publish();
}

std::vector<std::string> AppShortcutsTool::apps() const {
    std::vector<std::string> bundleIDs;
    for (const auto& entry : entries_) {
        bundleIDs.push_back(entry.bundleID);
    }
    return bundleIDs;
}

ShortcutSetting* AppShortcutsTool::shortcut(const std::string& bundleID) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.bundleID == bundleID; });
    return found == entries_.end() ? nullptr : found->shortcut.get();
}

void AppShortcutsTool::addApp(const std::string& bundleID) {
    if (bundleID.empty() || shortcut(bundleID)) {
        return;
    }
    entries_.push_back({bundleID, makeShortcut(bundleID)});
    if (running_) {
        entries_.back().shortcut->activate();
    }
    saveApps();
}

void AppShortcutsTool::removeApp(const std::string& bundleID) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.bundleID == bundleID; });
    if (found == entries_.end()) {
        return;
    }
    found->shortcut->deactivate();
    entries_.erase(found);
    platform_.preferences.remove(kShortcutKeyPrefix + bundleID);
    saveApps();
}

void AppShortcutsTool::saveApps() {
    platform_.preferences.set(kAppsKey, PreferenceValue::stringArray(apps()));
    publish();
}

void AppShortcutsTool::pressed(const std::string& bundleID) {
    Workspace& workspace = platform_.workspace;
    const auto action = AppShortcutAction::decide(bundleID, workspace.frontmostApplication(),
                                                  workspace.runningApplications());
    bool done = false;
    switch (action.kind) {
        case AppShortcutAction::Kind::hide:
            done = workspace.hideApplication(action.pid);
            break;
        case AppShortcutAction::Kind::activate:
            done = workspace.activate(action.pid);
            break;
        case AppShortcutAction::Kind::launch:
            done = workspace.launchApplication(bundleID);
            break;
    }
    const std::string error =
        done ? "" : "Couldn't open " + appEntries(workspace, {bundleID}).front().name;
    if (error != lastError_) {
        lastError_ = error;
        publish();
    }
}

}  // namespace quorvane
