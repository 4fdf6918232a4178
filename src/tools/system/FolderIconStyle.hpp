#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FolderArtwork.hpp"

namespace quorvane {

// A folder's look as the user writes it: a colour name or "#RRGGBB", an emoji (or a few
// letters), or a colour followed by an emoji: "blue", "🎵", "green 📸", "#FF8800 ★".
struct FolderIconStyle {
    struct NamedColor {
        std::string_view name;
        FolderArtwork::Color color;
    };
    // Strong enough to read as the colour, light enough to keep the folder's shading.
    static constexpr double kTintStrength = 0.85;
    static constexpr double kBadgeScale = 0.36;
    static constexpr double kBadgeCenterY = 0.42;
    static constexpr std::size_t kMaxBadgeCharacters = 8;

    // The colours offered by name, as Finder's tags name them and a few more.
    static const std::vector<NamedColor>& palette();
    // The artwork, or nothing with `error` saying what is wrong with the text.
    static std::optional<FolderArtwork> artwork(std::string_view text, std::string& error);
};

}  // namespace quorvane
