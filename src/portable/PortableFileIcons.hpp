#pragma once

#include "platform/FileIcons.hpp"

namespace quorvane {

// No Finder elsewhere: nothing carries a custom icon, and none can be set.
class PortableFileIcons : public FileIcons {
public:
    bool hasCustomIcon(const std::string& /*path*/) override { return false; }
    bool setIcon(const std::string& /*path*/, const FolderArtwork* /*artwork*/) override {
        return false;
    }
};

}  // namespace quorvane
