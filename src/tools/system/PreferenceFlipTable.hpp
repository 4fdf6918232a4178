#pragma once

#include <string>
#include <vector>

#include "tools/system/PreferenceFlip.hpp"

namespace quorvane {

// Everything a tool that only changes other programs' settings is: the keys it owns with the
// values it writes, the processes that must restart to read them, and what its page tells the
// user.
struct PreferenceFlipTable {
    std::string id;
    std::vector<PreferenceFlip> flips;
    // Process names for killall, in order ("Dock", "Finder", "SystemUIServer"…).
    std::vector<std::string> restarts;
    // When restarting is not enough: a logout, or other apps picking the change up on their
    // next launch. Empty when the change shows at once.
    std::string takesEffect;

    // The table of a tool, by id; nullptr for a tool that is not one of these.
    static const PreferenceFlipTable* find(const std::string& id);
};

}  // namespace quorvane
