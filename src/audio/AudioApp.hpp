#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/AudioPropertyAddress.hpp"

namespace quorvane {

// One application that owns HAL process objects; its helper processes are folded into it.
struct AudioApp {
    // A bundle identifier, a bundle path, "com.apple.WebKit", or "pid:" and the process ID.
    std::string id;
    std::string name;
    // The path of the application's bundle, for its icon; nothing when it has none.
    std::optional<std::string> bundleURL;
    // In the HAL's order.
    std::vector<AudioObjectID> processObjects;
    // Whether any of its processes is running output now.
    bool isPlaying = false;

    friend bool operator==(const AudioApp&, const AudioApp&) = default;
};

}  // namespace quorvane
