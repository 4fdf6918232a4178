#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerState.hpp"
#include "audio/GainControl.hpp"
#include "audio/TapRenderContext.hpp"
#include "platform/AudioBufferView.hpp"

namespace quorvane {

// A tap's render cycle written the plain way: frame by frame, channel by channel, each formula
// in the order it is stated. The real procedure must agree with it; the benchmarks time it as
// the baseline.
inline void referenceRender(const TapRenderContext& context, std::span<const AudioBufferView> input,
                            std::span<AudioBufferView> output) {
    GainControl& control = *context.control;
    const float target = control.target();
    const float current = control.current();
    const bool equalizing = context.engine->isEnabled();
    EqualizerEngine::CoefficientSet set{};
    context.engine->copyActiveSet(set);
    const std::size_t taps = context.tapBufferCount;
    const std::size_t firstTap = input.size() > taps ? input.size() - taps : 0;
    std::size_t base = 0;
    for (std::size_t k = 0; k < output.size(); ++k) {
        const std::size_t n = output[k].numberChannels;
        if (n == 0 || output[k].data == nullptr) {
            continue;
        }
        float envelope = k < 8 ? control.envelope(k) : 0.0f;
        if (n * 4 <= output[k].dataByteSize) {
            auto* out = static_cast<float*>(output[k].data);
            const std::size_t frames = output[k].dataByteSize / (n * 4);
            for (std::size_t f = 0; f < frames; ++f) {
                const float g = current + (target - current) * static_cast<float>(f) /
                                              static_cast<float>(frames);
                float peak = 0.0f;
                for (std::size_t c = 0; c < n; ++c) {
                    const std::size_t a = base + c;
                    float x = 0.0f;
                    if (taps == 1) {
                        if (firstTap < input.size()) {
                            const AudioBufferView& tap = input[firstTap];
                            if (a < tap.numberChannels && tap.data &&
                                (f + 1) * tap.numberChannels * 4 <= tap.dataByteSize) {
                                x = static_cast<const float*>(tap.data)[f * tap.numberChannels + a];
                            }
                        }
                    } else if (firstTap + a < input.size()) {
                        const AudioBufferView& tap = input[firstTap + a];
                        if (tap.data && (f + 1) * 4 <= tap.dataByteSize) {
                            x = static_cast<const float*>(tap.data)[f];
                        }
                    }
                    if (!std::isfinite(x)) {
                        x = 0.0f;
                    }
                    float s = g * x;
                    if (equalizing) {
                        s *= set[0];
                        for (std::size_t b = 0; b < 10; ++b) {
                            auto& m = context.equalizer->memory[std::min<std::size_t>(a, 7)][b];
                            const float* q = &set[1 + 5 * b];
                            const float y =
                                q[0] * s + q[1] * m.x1 + q[2] * m.x2 - q[3] * m.y1 - q[4] * m.y2;
                            m.x2 = m.x1;
                            m.x1 = s;
                            m.y2 = m.y1;
                            m.y1 = y;
                            s = y;
                        }
                    }
                    out[f * n + c] = s;
                    peak = std::max(peak, std::abs(s));
                }
                envelope = peak > envelope ? peak : 0.99986f * envelope + 0.00014001131f * peak;
                const float factor = envelope > 0.95f ? 0.95f / envelope : 1.0f;
                for (std::size_t c = 0; c < n; ++c) {
                    out[f * n + c] = std::clamp(out[f * n + c] * factor, -1.0f, 1.0f);
                }
            }
        }
        if (k < 8) {
            control.setEnvelope(k, envelope);
        }
        base += n;
    }
    control.setCurrent(target);
}

}  // namespace quorvane
