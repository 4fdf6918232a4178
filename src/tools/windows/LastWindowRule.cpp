#include "tools/windows/LastWindowRule.hpp"

#include <algorithm>

namespace quorvane {

LastWindowRule::Verdict LastWindowRule::decide(const App& app,
                                               const std::vector<std::string>& excepted) {
    if (app.bundleID == kFinder || app.isOwnProcess || !app.isRegular ||
        std::find(excepted.begin(), excepted.end(), app.bundleID) != excepted.end()) {
        return Verdict::excepted;
    }
    if (!app.windowsKnown) {
        return Verdict::unknown;
    }
    if (app.windowCount > 0) {
        return Verdict::hasWindows;
    }
    return app.userClosedIt ? Verdict::quit : Verdict::notByUser;
}

}  // namespace quorvane
