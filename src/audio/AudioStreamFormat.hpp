#pragma once

#include <cstdint>

namespace quorvane {

// A stream's format, laid out exactly like the HAL's AudioStreamBasicDescription (40 bytes), so
// a property read can fill it directly.
struct AudioStreamFormat {
    double sampleRate = 0;
    std::uint32_t formatID = 0;
    std::uint32_t formatFlags = 0;
    std::uint32_t bytesPerPacket = 0;
    std::uint32_t framesPerPacket = 0;
    std::uint32_t bytesPerFrame = 0;
    std::uint32_t channelsPerFrame = 0;
    std::uint32_t bitsPerChannel = 0;
    std::uint32_t reserved = 0;
};

static_assert(sizeof(AudioStreamFormat) == 40);

}  // namespace quorvane
