#pragma once

#include <optional>
#include <string>
#include <vector>

#include "audio/AudioDevice.hpp"

namespace quorvane {

// The decision of the device locks: which device, if any, to make the default again. The chosen
// device is fought for only while it is connected; when it goes, the system's choice stands
// until it comes back.
struct DeviceGuard {
    // `connected` are the devices that can take the role now; `current` is the default's ID,
    // nothing when it cannot be read.
    static std::optional<AudioObjectID> restore(const std::optional<std::string>& lockedUID,
                                                const std::vector<AudioDevice>& connected,
                                                std::optional<AudioObjectID> current);
};

}  // namespace quorvane
