#pragma once

#include <optional>
#include <string_view>

namespace quorvane {

// Apps that must keep one step per wheel notch: terminals (a notch is a line of scrollback or
// an arrow key to the program inside) and games (a notch picks the next weapon or zooms a step).
struct NotchedScrollApps {
    static constexpr const char* kCategoryKey = "LSApplicationCategoryType";

    static bool isTerminal(std::string_view bundleID);
    // "public.app-category.games" and its sub-categories ("…action-games", "…card-games"…).
    static bool isGameCategory(std::string_view category);
    static bool wantSteps(std::string_view bundleID,
                          const std::optional<std::string_view>& category) {
        return isTerminal(bundleID) || (category && isGameCategory(*category));
    }
};

}  // namespace quorvane
