#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvane {

// The sample layout of a WAV file's data: interleaved frames, little-endian samples.
struct WavFormat {
    enum class Encoding { pcm16, pcm24, pcm32, float32 };

    Encoding encoding = Encoding::float32;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0;
    std::uint64_t frameCount = 0;

    std::size_t bytesPerSample() const {
        return encoding == Encoding::pcm16 ? 2 : encoding == Encoding::pcm24 ? 3 : 4;
    }
    std::size_t bytesPerFrame() const { return bytesPerSample() * channels; }
};

}  // namespace quorvane
