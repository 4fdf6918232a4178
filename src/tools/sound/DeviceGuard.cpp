#include "tools/sound/DeviceGuard.hpp"

#include <algorithm>

namespace quorvane {

std::optional<AudioObjectID> DeviceGuard::restore(const std::optional<std::string>& lockedUID,
                                                  const std::vector<AudioDevice>& connected,
                                                  std::optional<AudioObjectID> current) {
    if (!lockedUID || lockedUID->empty()) {
        return std::nullopt;
    }
    const auto locked =
        std::find_if(connected.begin(), connected.end(),
                     [&](const AudioDevice& device) { return device.uid == *lockedUID; });
    if (locked == connected.end() || locked->id == current) {
        return std::nullopt;
    }
    return locked->id;
}

}  // namespace quorvane
