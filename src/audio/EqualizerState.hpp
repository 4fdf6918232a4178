#pragma once

#include <array>
#include <cstddef>

namespace quorvane {

// One tap's equalizer filter memory, touched only by that tap's real-time procedure. Output
// channels from the eighth on share the eighth channel's memory.
struct EqualizerState {
    static constexpr std::size_t kChannels = 8;
    static constexpr std::size_t kBands = 10;

    // The last two inputs and outputs of one biquad section.
    struct Section {
        float x1 = 0;
        float x2 = 0;
        float y1 = 0;
        float y2 = 0;
    };

    std::array<std::array<Section, kBands>, kChannels> memory{};
};

}  // namespace quorvane
