#pragma once

#include <optional>
#include <string>

namespace quorvane {

// A folder icon as data: the system's own folder drawn in a colour, with a badge on its front.
// The platform draws it; everything about how it looks is decided here, in portable code.
struct FolderArtwork {
    struct Color {
        double red = 0;
        double green = 0;
        double blue = 0;
        friend bool operator==(const Color&, const Color&) = default;
    };

    // Painted over the folder's own shading, keeping its light and shadow; nothing keeps the
    // system's blue.
    std::optional<Color> tint;
    // How much of the tint covers the folder: 1 paints it flat, 0 leaves the original.
    double tintStrength = 0;
    // An emoji or a few letters drawn on the folder's front; empty for none.
    std::string badgeText;
    // The badge's height as a share of the icon's, and its centre measured from the bottom:
    // the front panel of the folder sits below the middle of the square icon.
    double badgeScale = 0;
    double badgeCenterY = 0;

    friend bool operator==(const FolderArtwork&, const FolderArtwork&) = default;
};

}  // namespace quorvane
