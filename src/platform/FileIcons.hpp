#pragma once

#include <string>

#include "platform/FolderArtwork.hpp"

namespace quorvane {

// Custom icons of files and folders, as Finder shows them.
class FileIcons {
public:
    virtual ~FileIcons() = default;

    // Whether the item carries a custom icon of its own (for a folder, its "Icon\r" file).
    virtual bool hasCustomIcon(const std::string& path) = 0;
    // Draws the artwork and sets it as the item's custom icon (NSWorkspace setIcon:forFile:);
    // nullptr removes the custom icon, giving the item back the system's. False when refused.
    virtual bool setIcon(const std::string& path, const FolderArtwork* artwork) = 0;
};

}  // namespace quorvane
