#pragma once

#include <map>
#include <set>

#include "platform/FileIcons.hpp"

namespace quorvane {

// Custom icons by path; paths in `refused` cannot be changed.
struct FakeFileIcons : FileIcons {
    std::map<std::string, std::optional<FolderArtwork>> icons;  // nullopt: someone else's icon
    std::set<std::string> refused;

    bool hasCustomIcon(const std::string& path) override { return icons.contains(path); }
    bool setIcon(const std::string& path, const FolderArtwork* artwork) override {
        if (refused.contains(path)) {
            return false;
        }
        if (artwork != nullptr) {
            icons[path] = *artwork;
        } else {
            icons.erase(path);
        }
        return true;
    }
};

}  // namespace quorvane
