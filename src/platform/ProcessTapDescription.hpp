#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Uuid.hpp"
#include "platform/AudioPropertyAddress.hpp"

namespace quorvane {

// What a process tap captures and how (the fields of a CATapDescription).
struct ProcessTapDescription {
    enum class Kind {
        // Only the listed processes, mixed down to stereo.
        stereoMixdownOfProcesses,
        // Everything the system plays except the listed processes, in stereo.
        stereoGlobalTapButExcludeProcesses,
    };
    // The raw values are CATapMuteBehavior's.
    enum class MuteBehavior : std::int64_t { unmuted = 0, muted = 1, mutedWhenTapped = 2 };

    Kind kind = Kind::stereoMixdownOfProcesses;
    // HAL process object IDs, not process IDs.
    std::vector<AudioObjectID> processes;
    Uuid uuid;
    std::string name;
    bool isPrivate = true;
    MuteBehavior muteBehavior = MuteBehavior::unmuted;
};

}  // namespace quorvane
