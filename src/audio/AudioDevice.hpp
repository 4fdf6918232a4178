#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/AudioPropertyAddress.hpp"

namespace quorvane {

// An audio device as the HAL describes it when asked. Equal only when all four fields are.
struct AudioDevice {
    AudioObjectID id = 0;
    std::string uid;  // persistent across launches; empty when the HAL gave no string
    std::string name;
    std::uint32_t transportType = 0;  // a four-character code ('bltn', 'blue' …), 0 when unknown

    friend bool operator==(const AudioDevice&, const AudioDevice&) = default;
};

}  // namespace quorvane

template <>
struct std::hash<quorvane::AudioDevice> {
    std::size_t operator()(const quorvane::AudioDevice& device) const noexcept {
        std::size_t seed = std::hash<std::uint32_t>{}(device.id);
        for (const std::size_t part :
             {std::hash<std::string>{}(device.uid), std::hash<std::string>{}(device.name),
              std::hash<std::uint32_t>{}(device.transportType)}) {
            seed ^= part + 0x9E3779B97F4A7C15ULL + (seed << 6) + (seed >> 2);
        }
        return seed;
    }
};
