#pragma once

#include <cstdint>

namespace quorvane {

class EqualizerEngine;
class GainControl;
struct EqualizerState;

// What a tap's real-time procedure works on: fixed memory, allocated before the procedure is
// created and kept until after it is destroyed.
struct TapRenderContext {
    // How many of the input buffers belong to the tap: 1 when its samples are interleaved,
    // else one per channel. They are the last buffers of the input list.
    std::uint32_t tapBufferCount = 1;
    GainControl* control = nullptr;
    EqualizerState* equalizer = nullptr;
    const EqualizerEngine* engine = nullptr;
};

}  // namespace quorvane
