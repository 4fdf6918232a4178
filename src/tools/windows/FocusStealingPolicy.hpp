#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/windows/FocusApp.hpp"

namespace quorvane {

// Whether an application that just came to the front may stay there. Dates are seconds since
// 2001-01-01 UTC.
class FocusStealingPolicy {
public:
    // The user acted this recently: the activation is theirs.
    static constexpr double kUserActionWindow = 1.5;

    // System interface processes: dialogs, prompts, the Dock, Spotlight.
    static bool isSystemApp(std::string_view bundleID);

    struct Context {
        double now = 0;
        // Whether the user clicked or typed between the two dates, both included.
        std::function<bool(double from, double to)> userActedBetween;
        double launchGracePeriod = 15;
        std::vector<std::string> allowedBundleIDs;
        int ownPID = 0;
        double lastUserSwitch = -1e300;
        // Apps that may come forward once within the grace period, by process id, with the
        // date they earned it. The one free activation is used up here.
        std::map<int, double>* userLaunches = nullptr;
    };

    // The allow test: the first rule that answers decides.
    static bool allows(const FocusApp& app, const FocusApp* previous, const Context& context);
    static bool userJustActed(const Context& context);
};

}  // namespace quorvane
