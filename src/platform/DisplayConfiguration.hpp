#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"

namespace quorvane {

// Which displays are connected, named so that the same monitor is recognised when it is
// plugged in again or after a restart, and a word when that changes.
class DisplayConfiguration {
public:
    virtual ~DisplayConfiguration() = default;

    // One identifier per display, in the order of Screens::screens().
    virtual std::vector<std::string> displayIDs() = 0;
    // Called on the main thread after displays were added, removed, moved, mirrored or changed
    // resolution; once per reconfiguration, not once per display.
    [[nodiscard]] virtual Subscription observeReconfiguration(std::function<void()> handler) = 0;
};

}  // namespace quorvane
