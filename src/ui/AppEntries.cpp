#include "ui/AppEntries.hpp"

#include "platform/Workspace.hpp"

namespace quorvane {

std::vector<SettingsRow::AppEntry> appEntries(Workspace& workspace,
                                              const std::vector<std::string>& bundleIDs) {
    const auto running = workspace.runningApplications();
    std::vector<SettingsRow::AppEntry> entries;
    entries.reserve(bundleIDs.size());
    for (const auto& bundleID : bundleIDs) {
        std::string name = bundleID;
        for (const auto& app : running) {
            if (app.bundleID == bundleID && !app.name.empty()) {
                name = app.name;
            }
        }
        entries.push_back({bundleID, std::move(name)});
    }
    return entries;
}

}  // namespace quorvane
