#pragma once

#include <set>
#include <string>
#include <vector>

#include "audio/AudioApp.hpp"

namespace quorvane {

// Which applications the mixer shows, and in what order. Listed are the applications that have
// played at least once (or have a changed level) and are still open, in the monitor's order.
// While the pointer is inside the list the order is frozen, so a row never moves under the
// pointer: rows keep their places, applications that appear meanwhile go to the end, and the
// monitor's order returns when the pointer leaves.
class AppVolumeList {
public:
    // The rows to show now, as indexes into `apps`.
    std::vector<std::size_t> rows(const std::vector<AudioApp>& apps,
                                  const std::set<std::string>& listed);
    // The mixer's menu-bar panel is compact; the settings page is not.
    bool compact = false;
    bool isPointerInside() const { return isPointerInside_; }
    void setPointerInside(bool inside);
    const std::vector<std::string>& frozenRows() const { return frozenRows_; }

private:
    bool isPointerInside_ = false;
    std::vector<std::string> frozenRows_;
};

}  // namespace quorvane
