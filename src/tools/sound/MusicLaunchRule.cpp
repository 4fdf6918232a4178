#include "tools/sound/MusicLaunchRule.hpp"

#include <algorithm>

namespace quorvane {

bool MusicLaunchRule::shouldStop(std::string_view bundleID, std::optional<double> launchDate,
                                 double now, const std::function<bool(double, double)>& userActed) {
    if (bundleID != kMusicBundleID) {
        return false;
    }
    // The launch date is when the system started the app; the notice may come a little later,
    // and a date in the future is the clock's fault, not a reason to look further ahead.
    const double launched = std::min(launchDate.value_or(now), now);
    return !userActed(launched - kGraceSeconds, now);
}

}  // namespace quorvane
