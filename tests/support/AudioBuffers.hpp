#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/AudioBufferView.hpp"

namespace quorvane {

// A buffer list with its own sample storage, for feeding a render cycle by hand.
struct AudioBuffers {
    std::vector<std::vector<float>> samples;
    std::vector<AudioBufferView> views;

    // A buffer of `frames` interleaved frames of `channels` samples, each `fill`.
    AudioBufferView& add(std::uint32_t channels, std::size_t frames, float fill = 0.0f) {
        samples.emplace_back(frames * channels, fill);
        // Moving the inner vectors keeps their storage, so earlier views stay valid.
        views.push_back({channels, static_cast<std::uint32_t>(frames * channels * sizeof(float)),
                         samples.back().data()});
        return views.back();
    }
    std::vector<float>& operator[](std::size_t buffer) { return samples[buffer]; }
    std::span<AudioBufferView> span() { return views; }
};

}  // namespace quorvane
