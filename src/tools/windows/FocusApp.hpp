#pragma once

#include <optional>
#include <string>

namespace quorvane {

// What stop-focus-stealing knows of a running application when it decides.
struct FocusApp {
    int pid = 0;
    std::string bundleID;
    std::string name;
    std::optional<std::string> bundleURL;
    std::optional<double> launchDate;  // seconds since 2001-01-01 UTC
    bool isRegular = true;             // has a Dock icon
    bool isHidden = false;
    bool isTerminated = false;
};

}  // namespace quorvane
