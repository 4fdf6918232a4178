#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "audio/WavFile.hpp"

namespace quorvane {

// Writes a 32-bit float WAV file whose length is known up front, so the header is written once
// and the samples are streamed after it.
class WavWriter {
public:
    // Throws WavError when the file cannot be created or the length does not fit a WAV file.
    WavWriter(const std::filesystem::path& path, std::uint16_t channels, std::uint32_t sampleRate,
              std::uint64_t frameCount);

    // Interleaved frames.
    void write(std::span<const float> samples);
    // Flushes and closes; throws WavError when the data did not reach the disk.
    void finish();

private:
    WavFile file_;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace quorvane
