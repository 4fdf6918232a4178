#pragma once

#include <optional>
#include <string>

namespace quorvane {

// What the workspace knows about one running application, read when it was asked for.
struct RunningApplication {
    // NSApplicationActivationPolicy.
    enum class ActivationPolicy { regular = 0, accessory = 1, prohibited = 2 };

    int pid = 0;
    std::string bundleID;
    std::string name;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    // Seconds since 2001-01-01 00:00:00 UTC; nothing for applications not launched through
    // the workspace.
    std::optional<double> launchDate;
    bool hidden = false;
    bool terminated = false;
    std::string bundleURL;
};

}  // namespace quorvane
