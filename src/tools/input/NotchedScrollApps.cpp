#include "tools/input/NotchedScrollApps.hpp"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr std::array<std::string_view, 12> kTerminals = {
    "com.apple.Terminal",    "com.googlecode.iterm2",
    "net.kovidgoyal.kitty",  "org.alacritty",
    "io.alacritty",          "com.github.wez.wezterm",
    "dev.warp.Warp-Stable",  "co.zeit.hyper",
    "com.mitchellh.ghostty", "org.tabby",
    "com.panic.Prompt3",     "com.termius-dmg.mac",
};

constexpr std::string_view kGamePrefix = "public.app-category.";
constexpr std::string_view kGames = "public.app-category.games";
constexpr std::string_view kGameSuffix = "-games";

}  // namespace

bool NotchedScrollApps::isTerminal(std::string_view bundleID) {
    return std::find(kTerminals.begin(), kTerminals.end(), bundleID) != kTerminals.end();
}

bool NotchedScrollApps::isGameCategory(std::string_view category) {
    return category == kGames ||
           (category.starts_with(kGamePrefix) && category.ends_with(kGameSuffix));
}

}  // namespace quorvane
