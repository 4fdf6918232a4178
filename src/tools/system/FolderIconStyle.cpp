#include "tools/system/FolderIconStyle.hpp"

#include <algorithm>
#include <cctype>

#include "base/HexDigit.hpp"
#include "base/Utf8.hpp"

namespace quorvane {

namespace {

bool isSpace(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::optional<FolderArtwork::Color> hexColor(std::string_view word) {
    if (word.size() != 7 || word[0] != '#') {
        return std::nullopt;
    }
    double channels[3] = {};
    for (std::size_t i = 0; i < 3; ++i) {
        const int high = hexDigitValue(word[1 + 2 * i]);
        const int low = hexDigitValue(word[2 + 2 * i]);
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        channels[i] = (high * 16 + low) / 255.0;
    }
    return FolderArtwork::Color{channels[0], channels[1], channels[2]};
}

std::optional<FolderArtwork::Color> namedColor(std::string_view word) {
    for (const auto& entry : FolderIconStyle::palette()) {
        if (std::equal(
                word.begin(), word.end(), entry.name.begin(), entry.name.end(),
                [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; })) {
            return entry.color;
        }
    }
    return std::nullopt;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        text.remove_prefix(std::max<std::size_t>(1, utf8::sequenceLength(text)));
        ++count;
    }
    return count;
}

}  // namespace

const std::vector<FolderIconStyle::NamedColor>& FolderIconStyle::palette() {
    static const std::vector<NamedColor> colors = {
        {"red", {1.00, 0.23, 0.19}},    {"orange", {1.00, 0.58, 0.00}},
        {"yellow", {1.00, 0.80, 0.00}}, {"green", {0.20, 0.78, 0.35}},
        {"mint", {0.00, 0.78, 0.75}},   {"teal", {0.19, 0.69, 0.78}},
        {"blue", {0.00, 0.48, 1.00}},   {"indigo", {0.35, 0.34, 0.84}},
        {"purple", {0.69, 0.32, 0.87}}, {"pink", {1.00, 0.18, 0.33}},
        {"brown", {0.64, 0.52, 0.37}},  {"gray", {0.56, 0.56, 0.58}},
        {"black", {0.15, 0.15, 0.16}},
    };
    return colors;
}

std::optional<FolderArtwork> FolderIconStyle::artwork(std::string_view text, std::string& error) {
    text = trimmed(text);
    const std::string_view first = text.substr(0, std::min(text.find_first_of(" \t"), text.size()));
    FolderArtwork artwork;
    artwork.tint = first.starts_with('#') ? hexColor(first) : namedColor(first);
    if (first.starts_with('#') && !artwork.tint) {
        error = "\"" + std::string(first) + "\" is not a colour: write it as #RRGGBB";
        return std::nullopt;
    }
    const std::string_view badge = artwork.tint ? trimmed(text.substr(first.size())) : text;
    if (!artwork.tint && badge.empty()) {
        error = "Write a colour, an emoji, or both";
        return std::nullopt;
    }
    if (!utf8::isValid(badge) || characterCount(badge) > kMaxBadgeCharacters) {
        error = "\"" + utf8::truncate(badge, kMaxBadgeCharacters) +
                "…\" is too long: the badge is one emoji or a few letters";
        return std::nullopt;
    }
    if (artwork.tint) {
        artwork.tintStrength = kTintStrength;
    }
    if (!badge.empty()) {
        artwork.badgeText = std::string(badge);
        artwork.badgeScale = kBadgeScale;
        artwork.badgeCenterY = kBadgeCenterY;
    }
    return artwork;
}

}  // namespace quorvane
