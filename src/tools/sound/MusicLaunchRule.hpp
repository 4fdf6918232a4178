#pragma once

#include <functional>
#include <optional>
#include <string_view>

namespace quorvane {

// Whether a launch of the Music app is to be undone: it is, unless the user clicked or typed
// within the grace period before it (a Dock click, Spotlight, opening a song). Headphones
// being plugged in and the play key are not user actions in that sense.
struct MusicLaunchRule {
    static constexpr std::string_view kMusicBundleID = "com.apple.Music";
    static constexpr double kGraceSeconds = 3;

    // `launchDate` and `now` are seconds since 2001; `userActed(from, to)` answers whether the
    // user did something between the two dates.
    static bool shouldStop(std::string_view bundleID, std::optional<double> launchDate, double now,
                           const std::function<bool(double, double)>& userActed);
};

}  // namespace quorvane
