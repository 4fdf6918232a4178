#include "tools/system/FreeUpSpaceTool.hpp"

#include "platform/FileSystem.hpp"
#include "platform/Workspace.hpp"
#include "tools/system/SizeTally.hpp"
#include "tools/system/TrashOutcome.hpp"

namespace quorvane {

FreeUpSpaceTool::FreeUpSpaceTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

void FreeUpSpaceTool::stop() {
    items_.clear();
    scanned_ = false;
    publish();
}

void FreeUpSpaceTool::scan() {
    std::vector<std::string> running;
    for (const auto& app : platform_.workspace.runningApplications()) {
        running.push_back(app.bundleID);
    }
    items_ = SpaceScan::scan(platform_.fileSystem, platform_.fileSystem.homeDirectory(), running);
    scanned_ = true;
    lastError_.clear();
    publish();
}

void FreeUpSpaceTool::keep(std::size_t index) {
    if (index < items_.size()) {
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        publish();
    }
}

void FreeUpSpaceTool::moveToTrash() {
    TrashOutcome outcome;
    std::vector<SpaceScan::Item> left;
    for (auto& item : items_) {
        const auto* category = SpaceScan::category(item.category);
        if ((category != nullptr && category->alreadyTrashed) ||
            !outcome.trash(platform_.fileSystem, item.path)) {
            left.push_back(std::move(item));
        }
    }
    items_ = std::move(left);
    lastError_ = outcome.summary();
    publish();
}

std::vector<std::string> FreeUpSpaceTool::lines() const {
    std::vector<std::string> lines;
    for (const auto& item : items_) {
        const auto* category = SpaceScan::category(item.category);
        lines.push_back(SizeTally::format(item.bytes) + "  " +
                        (category != nullptr ? category->title : item.category) + "  " + item.path);
    }
    return lines;
}

SettingsPage FreeUpSpaceTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::Button{"Scan", [this] { scan(); }}, {}});
    section.rows.push_back(
        {SettingsRow::ItemList{"Found", [this] { return lines(); },
                               [this](std::size_t index) { keep(index); },
                               "Scan to see what can go. Nothing is removed until you say so."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"Listed: caches of apps that are not running, logs, Xcode build "
                           "and device support files, simulator and package-manager caches. "
                           "Files of macOS itself are never listed. Remove an item from the "
                           "list to keep it. The Trash is shown for its size; empty it in "
                           "Finder."},
         {}});
    section.rows.push_back(
        {SettingsRow::Button{"Move Listed Items to the Trash", [this] { moveToTrash(); },
                             SettingsRow::ButtonRole::destructive},
         [this] { return SpaceScan::total(items_, false) > 0; }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
