#pragma once

#include <span>

#include "audio/TapRenderContext.hpp"
#include "platform/AudioBufferView.hpp"

namespace quorvane {

// One I/O cycle of a tap: takes the tap's samples from the input buffers and writes them to the
// output buffers with the gain (ramped linearly over the cycle from the last gain to the
// target), the shared equalizer and a limiter that keeps every sample within −1…1. Missing
// input is silence. Runs on the real-time thread: it allocates nothing, takes no lock, throws
// nothing and calls nothing virtual.
void renderTap(const TapRenderContext& context, std::span<const AudioBufferView> input,
               std::span<AudioBufferView> output) noexcept;

}  // namespace quorvane
