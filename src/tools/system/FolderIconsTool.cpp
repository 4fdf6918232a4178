#include "tools/system/FolderIconsTool.hpp"

#include <algorithm>

#include "platform/FileIcons.hpp"
#include "platform/Preferences.hpp"
#include "tools/system/FolderIconStyle.hpp"

namespace quorvane {

FolderIconsTool::FolderIconsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    if (const auto stored = platform_.preferences.object(kFoldersKey)) {
        if (const auto* array = stored->array()) {
            for (const auto& item : *array) {
                const auto* record = item.dictionary();
                if (record == nullptr) {
                    continue;
                }
                Folder folder;
                for (const auto& [key, value] : *record) {
                    if (const auto* text = value.string(); text != nullptr && key == "path") {
                        folder.path = *text;
                    } else if (text != nullptr && key == "style") {
                        folder.style = *text;
                    }
                }
                folders_.push_back(std::move(folder));
            }
        }
    }
    applied_ = platform_.preferences.stringArray(kAppliedKey).value_or(std::vector<std::string>{});
}

void FolderIconsTool::start() {
    running_ = true;
    lastError_.clear();
    for (const auto& folder : folders_) {
        apply(folder);
    }
    publish();
}

void FolderIconsTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    removeAll();
}

void FolderIconsTool::removeAll() {
    lastError_.clear();
    for (const auto& path : std::vector<std::string>(applied_)) {
        removeIcon(path);
    }
    warnings_.clear();
    publish();
}

bool FolderIconsTool::isApplied(const std::string& path) const {
    return std::find(applied_.begin(), applied_.end(), path) != applied_.end();
}

void FolderIconsTool::apply(const Folder& folder) {
    warnings_.erase(folder.path);
    if (folder.path.empty()) {
        return;
    }
    std::string error;
    const auto artwork = FolderIconStyle::artwork(folder.style, error);
    if (!artwork) {
        warnings_[folder.path] = error;
        return;
    }
    if (!isApplied(folder.path) && platform_.fileIcons.hasCustomIcon(folder.path)) {
        warnings_[folder.path] =
            "This folder already has an icon of its own. Quorvane leaves it alone, since it "
            "couldn't give that icon back.";
        return;
    }
    if (!platform_.fileIcons.setIcon(folder.path, &*artwork)) {
        warnings_[folder.path] =
            "Couldn't change this folder's icon. Check that the folder exists and is yours.";
        return;
    }
    if (!isApplied(folder.path)) {
        applied_.push_back(folder.path);
        saveApplied();
    }
}

void FolderIconsTool::removeIcon(const std::string& path) {
    if (!isApplied(path)) {
        return;
    }
    // A folder that is gone has no icon left to give back.
    if (!platform_.fileIcons.setIcon(path, nullptr) && platform_.fileIcons.hasCustomIcon(path)) {
        lastError_ = "Couldn't give " + path + " its usual icon back";
        return;
    }
    std::erase(applied_, path);
    saveApplied();
}

void FolderIconsTool::addFolder(Folder folder) {
    folders_.push_back(std::move(folder));
    saveFolders();
    if (running_) {
        apply(folders_.back());
    }
    publish();
}

void FolderIconsTool::setPath(std::size_t index, const std::string& path) {
    if (index >= folders_.size() || folders_[index].path == path) {
        return;
    }
    if (running_) {
        removeIcon(folders_[index].path);
    }
    warnings_.erase(folders_[index].path);
    folders_[index].path = path;
    saveFolders();
    if (running_) {
        apply(folders_[index]);
    }
    publish();
}

void FolderIconsTool::setStyle(std::size_t index, const std::string& style) {
    if (index >= folders_.size()) {
        return;
    }
    folders_[index].style = style;
    saveFolders();
    if (running_) {
        apply(folders_[index]);
    }
    publish();
}

void FolderIconsTool::removeFolder(std::size_t index) {
    if (index >= folders_.size()) {
        return;
    }
    removeIcon(folders_[index].path);
    warnings_.erase(folders_[index].path);
    folders_.erase(folders_.begin() + static_cast<long>(index));
    saveFolders();
    publish();
}

std::string FolderIconsTool::warning(const std::string& path) const {
    const auto found = warnings_.find(path);
    return found == warnings_.end() ? std::string() : found->second;
}

void FolderIconsTool::saveFolders() {
    PreferenceValue::Array array;
    for (const auto& folder : folders_) {
        PreferenceValue::Dictionary record;
        record.emplace("path", folder.path);
        record.emplace("style", folder.style);
        array.emplace_back(std::move(record));
    }
    platform_.preferences.set(kFoldersKey, std::move(array));
}

void FolderIconsTool::saveApplied() {
    platform_.preferences.set(kAppliedKey, PreferenceValue::stringArray(applied_));
}

}  // namespace quorvane
