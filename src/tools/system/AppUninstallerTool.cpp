#include "tools/system/AppUninstallerTool.hpp"

#include <algorithm>

#include "platform/FileSystem.hpp"
#include "platform/Workspace.hpp"
#include "tools/system/SizeTally.hpp"
#include "tools/system/TrashOutcome.hpp"

namespace quorvane {

AppUninstallerTool::AppUninstallerTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

void AppUninstallerTool::stop() {
    chosen_.clear();
    items_.clear();
    publish();
}

void AppUninstallerTool::choose(const std::string& app) {
    chosen_ = app;
    items_.clear();
    lastError_.clear();
    const auto identity = LeftoverScan::identify(platform_.processFacts, app, lastError_);
    if (identity) {
        std::vector<AppIdentity> others;
        std::optional<std::string> running;
        for (const auto& other : platform_.workspace.runningApplications()) {
            if (other.bundleID == identity->bundleID) {
                running = !other.name.empty() ? other.name : identity->bundleID;
            }
            others.push_back({other.bundleID, other.name, {}});
        }
        const LeftoverMatcher matcher(*identity, others);
        if (auto refusal = matcher.refusal(); !refusal.empty()) {
            lastError_ = refusal;
        } else if (running) {
            lastError_ = "Quit " + *running + " first: it is running.";
        } else {
            if (!identity->bundlePath.empty() &&
                platform_.fileSystem.status(identity->bundlePath)) {
                SizeTally tally;
                items_.push_back({identity->bundlePath,
                                  tally.measure(platform_.fileSystem, identity->bundlePath)});
            }
            const auto leftovers =
                LeftoverScan::find(platform_.fileSystem, matcher,
                                   LeftoverScan::libraries(platform_.fileSystem.homeDirectory()));
            items_.insert(items_.end(), leftovers.begin(), leftovers.end());
        }
    }
    publish();
}

void AppUninstallerTool::keep(std::size_t index) {
    if (index < items_.size()) {
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        publish();
    }
}

void AppUninstallerTool::moveToTrash() {
    TrashOutcome outcome;
    std::erase_if(items_, [&](const LeftoverScan::Item& item) {
        return outcome.trash(platform_.fileSystem, item.path);
    });
    lastError_ = outcome.summary();
    publish();
}

SettingsPage AppUninstallerTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::TextField{"App",
                                                   "Drop an app here, or type its bundle "
                                                   "identifier",
                                                   [this] { return chosen_; },
                                                   [this](const std::string& app) { choose(app); }},
                            {}});
    section.rows.push_back(
        {SettingsRow::ItemList{"Will be moved to the Trash",
                               [this] {
                                   std::vector<std::string> lines;
                                   for (const auto& item : items_) {
                                       lines.push_back(SizeTally::format(item.bytes) + "  " +
                                                       item.path);
                                   }
                                   return lines;
                               },
                               [this](std::size_t index) { keep(index); }, "Nothing found yet."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"Settings, caches, containers, saved state, logs and launch agents "
                           "are found by the app's bundle identifier and name, in your Library "
                           "and the computer's. Files of other apps and of macOS are never "
                           "listed. Remove a line to keep that item."},
         {}});
    section.rows.push_back({SettingsRow::Button{"Move All to the Trash", [this] { moveToTrash(); },
                                                SettingsRow::ButtonRole::destructive},
                            [this] { return !items_.empty(); }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
