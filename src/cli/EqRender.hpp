#pragma once

#include <cstddef>
#include <filesystem>

#include "audio/EqualizerPreset.hpp"

namespace quorvane {

// Plays a WAV file through the same engine and render procedure the app's taps use, buffer by
// buffer, into a 32-bit float WAV file. The output appears only when it is complete: it is
// written beside its destination under a temporary name and renamed at the end.
struct EqRender {
    EqualizerPreset::Gains gains{};
    double preamp = 0;
    double gain = 1;
    std::size_t bufferFrames = 512;

    // Throws WavError; nothing is left at `output` then.
    void run(const std::filesystem::path& input, const std::filesystem::path& output) const;
};

}  // namespace quorvane
