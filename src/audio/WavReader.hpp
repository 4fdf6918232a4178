#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "audio/WavFile.hpp"
#include "audio/WavFormat.hpp"

namespace quorvane {

// Reads a WAV file's samples as floats, a chunk at a time, so memory does not grow with the
// file. Accepts 16-, 24- and 32-bit integer PCM and 32-bit float, in the plain and the
// extensible format, 1 to 8 channels. The header is checked whole before any sample is read:
// every chunk must fit in the file, and the data must be whole frames.
class WavReader {
public:
    static constexpr std::uint16_t kMaxChannels = 8;

    // Throws WavError naming what is wrong.
    explicit WavReader(const std::filesystem::path& path);

    const WavFormat& format() const { return format_; }
    // Up to `frames` frames as interleaved floats in −1…1 (float files as they are) into `out`,
    // which holds at least frames × channels values. Returns the frames read, 0 at the end.
    std::size_t read(std::span<float> out, std::size_t frames);

private:
    void readHeader(std::uint64_t fileSize);

    WavFile file_;
    WavFormat format_;
    std::uint64_t framesLeft_ = 0;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace quorvane
