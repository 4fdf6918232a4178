#pragma once

#include "platform/FileIcons.hpp"

namespace quorvane {

// Custom icons through NSWorkspace; folder artwork is drawn over the system's folder icon.
class MacFileIcons final : public FileIcons {
public:
    bool hasCustomIcon(const std::string& path) override;
    bool setIcon(const std::string& path, const FolderArtwork* artwork) override;
};

}  // namespace quorvane
