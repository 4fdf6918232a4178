#include "audio/RenderTap.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerState.hpp"
#include "audio/GainControl.hpp"

namespace quorvane {

namespace {

constexpr std::size_t kBands = EqualizerState::kBands;
constexpr std::size_t kSampleBytes = sizeof(float);
// The limiter: instant attack, slow release towards the frame's peak, and a ceiling. The
// release's complement is exactly 1 minus the float nearest 0.99986, so a steady peak is
// followed without drift.
constexpr float kRelease = 0.99986f;
constexpr float kReleaseComplement = 0.00014001131f;
constexpr float kCeiling = 0.95f;

using CoefficientSet = EqualizerEngine::CoefficientSet;

// Where one output channel's samples come from: every `stride`-th float from `data` for the
// first `frames` frames, silence after.
struct Source {
    const float* data = nullptr;
    std::size_t stride = 1;
    std::size_t frames = 0;
};

Source sourceFor(std::span<const AudioBufferView> input, std::size_t firstTap,
                 std::uint32_t tapBufferCount, std::size_t channel) {
    if (tapBufferCount == 1) {
        if (firstTap >= input.size()) {
            return {};
        }
        const AudioBufferView& tap = input[firstTap];
        if (channel >= tap.numberChannels || tap.data == nullptr) {
            return {};
        }
        return {static_cast<const float*>(tap.data) + channel, tap.numberChannels,
                tap.dataByteSize / (tap.numberChannels * kSampleBytes)};
    }
    const std::size_t index = firstTap + channel;
    if (index >= input.size() || input[index].data == nullptr) {
        return {};
    }
    return {static_cast<const float*>(input[index].data), 1,
            input[index].dataByteSize / kSampleBytes};
}

// Writes gain × input (× the preamp when equalizing) into the output buffer. The gain moves in
// a straight line from `current` at the first frame towards `target`, which it reaches at the
// first frame of the next cycle.
struct GainPass {
    std::span<const AudioBufferView> input;
    std::size_t firstTap;
    std::uint32_t tapBufferCount;
    float current;
    float target;
    bool equalizing;
    float preamp;
};

void applyGain(const GainPass& pass, float* out, std::size_t frames, std::size_t channels,
               std::size_t base) {
    const bool ramps = pass.target != pass.current;
    for (std::size_t c = 0; c < channels; ++c) {
        const Source source = sourceFor(pass.input, pass.firstTap, pass.tapBufferCount, base + c);
        for (std::size_t f = 0; f < frames; ++f) {
            float x = f < source.frames ? source.data[f * source.stride] : 0.0f;
            // A stray infinity or NaN from an app would stay in the filter memory for good.
            if (!std::isfinite(x)) {
                x = 0.0f;
            }
            const float gain = ramps ? pass.current + (pass.target - pass.current) *
                                                          static_cast<float>(f) /
                                                          static_cast<float>(frames)
                                     : pass.current;
            float s = gain * x;
            if (pass.equalizing) {
                s *= pass.preamp;
            }
            out[f * channels + c] = s;
        }
    }
}

// The ten sections in band order, frame by frame, for layouts where channels share memory.
void equalizeFrames(float* out, std::size_t frames, std::size_t channels, std::size_t base,
                    const CoefficientSet& set, EqualizerState& state) {
    for (std::size_t f = 0; f < frames; ++f) {
        for (std::size_t c = 0; c < channels; ++c) {
            auto& memory = state.memory[std::min(base + c, EqualizerState::kChannels - 1)];
            float s = out[f * channels + c];
            for (std::size_t b = 0; b < kBands; ++b) {
                EqualizerState::Section& m = memory[b];
                const float* k = &set[1 + 5 * b];
                const float y = k[0] * s + k[1] * m.x1 + k[2] * m.x2 - k[3] * m.y1 - k[4] * m.y2;
                m.x2 = m.x1;
                m.x1 = s;
                m.y2 = m.y1;
                m.y1 = y;
                s = y;
            }
            out[f * channels + c] = s;
        }
    }
}

// The same arithmetic, reordered for speed. Frame by frame, each section waits for the one
// before it, so ten sections form one long dependency chain per sample. Here section b works on
// frame t − b while section b − 1 works on frame t − b + 1: within one step every (section,
// channel) lane is independent, and the compiler can run the lanes side by side. Each lane still
// computes exactly what the frame-by-frame loop computes, in the same order.
template <std::size_t N>
struct Lanes {
    // Lane b × N + c is band b of channel c.
    static constexpr std::size_t kCount = kBands * N;
    float b0[kCount], b1[kCount], b2[kCount], a1[kCount], a2[kCount];
    float x1[kCount], x2[kCount], y1[kCount], y2[kCount];
    float x[kCount], y[kCount];
};

template <std::size_t N>
inline void step(Lanes<N>& s, std::size_t first, std::size_t end) {
    for (std::size_t l = first; l < end; ++l) {
        const float y = s.b0[l] * s.x[l] + s.b1[l] * s.x1[l] + s.b2[l] * s.x2[l] -
                        s.a1[l] * s.y1[l] - s.a2[l] * s.y2[l];
        s.x2[l] = s.x1[l];
        s.x1[l] = s.x[l];
        s.y2[l] = s.y1[l];
        s.y1[l] = y;
        s.y[l] = y;
    }
}

// After a step: each section's output becomes the next section's input, the next frame enters
// the first section, and the last section's output is final.
template <std::size_t N>
inline void advance(Lanes<N>& s, float* out, std::size_t t, std::size_t frames) {
    constexpr std::size_t kLast = (kBands - 1) * N;
    if (t >= kBands - 1) {
        float* finished = out + (t - (kBands - 1)) * N;
        for (std::size_t c = 0; c < N; ++c) {
            finished[c] = s.y[kLast + c];
        }
    }
    for (std::size_t l = 0; l < kLast; ++l) {
        s.x[N + l] = s.y[l];
    }
    if (t + 1 < frames) {
        const float* next = out + (t + 1) * N;
        for (std::size_t c = 0; c < N; ++c) {
            s.x[c] = next[c];
        }
    }
}

template <std::size_t N>
void equalizeLanes(float* out, std::size_t frames, std::size_t base, const CoefficientSet& set,
                   EqualizerState& state) {
    Lanes<N> s;
    for (std::size_t b = 0; b < kBands; ++b) {
        const float* k = &set[1 + 5 * b];
        for (std::size_t c = 0; c < N; ++c) {
            const std::size_t l = b * N + c;
            const EqualizerState::Section& m = state.memory[base + c][b];
            s.b0[l] = k[0];
            s.b1[l] = k[1];
            s.b2[l] = k[2];
            s.a1[l] = k[3];
            s.a2[l] = k[4];
            s.x1[l] = m.x1;
            s.x2[l] = m.x2;
            s.y1[l] = m.y1;
            s.y2[l] = m.y2;
            s.x[l] = 0.0f;
            s.y[l] = 0.0f;
        }
    }
    for (std::size_t c = 0; c < N; ++c) {
        s.x[c] = out[c];
    }
    // Step t runs the sections that have a frame: band b on frame t − b.
    const std::size_t steps = frames + kBands - 1;
    for (std::size_t t = 0; t < steps;) {
        if (t >= kBands - 1 && t < frames) {
            for (; t < frames; ++t) {
                step(s, 0, Lanes<N>::kCount);
                advance(s, out, t, frames);
            }
            continue;
        }
        const std::size_t firstBand = t >= frames ? t - frames + 1 : 0;
        const std::size_t lastBand = std::min(t, kBands - 1);
        step(s, firstBand * N, (lastBand + 1) * N);
        advance(s, out, t, frames);
        ++t;
    }
    for (std::size_t b = 0; b < kBands; ++b) {
        for (std::size_t c = 0; c < N; ++c) {
            const std::size_t l = b * N + c;
            state.memory[base + c][b] = {s.x1[l], s.x2[l], s.y1[l], s.y2[l]};
        }
    }
}

void equalize(float* out, std::size_t frames, std::size_t channels, std::size_t base,
              const CoefficientSet& set, EqualizerState& state) {
    // Channels from the eighth on share memory, so only the frame-by-frame order is right there.
    if (base + channels > EqualizerState::kChannels) {
        equalizeFrames(out, frames, channels, base, set, state);
        return;
    }
    switch (channels) {
        case 1:
            return equalizeLanes<1>(out, frames, base, set, state);
        case 2:
            return equalizeLanes<2>(out, frames, base, set, state);
        case 3:
            return equalizeLanes<3>(out, frames, base, set, state);
        case 4:
            return equalizeLanes<4>(out, frames, base, set, state);
        case 5:
            return equalizeLanes<5>(out, frames, base, set, state);
        case 6:
            return equalizeLanes<6>(out, frames, base, set, state);
        case 7:
            return equalizeLanes<7>(out, frames, base, set, state);
        default:
            return equalizeLanes<8>(out, frames, base, set, state);
    }
}

// Returns the envelope after the last frame.
float limit(float* out, std::size_t frames, std::size_t channels, float envelope) {
    for (std::size_t f = 0; f < frames; ++f) {
        float* frame = out + f * channels;
        float peak = 0.0f;
        for (std::size_t c = 0; c < channels; ++c) {
            peak = std::max(peak, std::abs(frame[c]));
        }
        envelope = peak > envelope ? peak : kRelease * envelope + kReleaseComplement * peak;
        const float factor = envelope > kCeiling ? kCeiling / envelope : 1.0f;
        for (std::size_t c = 0; c < channels; ++c) {
            frame[c] = std::clamp(frame[c] * factor, -1.0f, 1.0f);
        }
    }
    return envelope;
}

}  // namespace

void renderTap(const TapRenderContext& context, std::span<const AudioBufferView> input,
               std::span<AudioBufferView> output) noexcept {
    GainControl& control = *context.control;
    const bool equalizing = context.engine->isEnabled();
    CoefficientSet set;
    if (equalizing) {
        context.engine->copyActiveSet(set);
    }
    const std::size_t tapBuffers = context.tapBufferCount;
    const GainPass pass{input,
                        input.size() > tapBuffers ? input.size() - tapBuffers : 0,
                        context.tapBufferCount,
                        control.current(),
                        control.target(),
                        equalizing,
                        equalizing ? set[0] : 1.0f};

    std::size_t base = 0;
    for (std::size_t k = 0; k < output.size(); ++k) {
        AudioBufferView& buffer = output[k];
        const std::size_t channels = buffer.numberChannels;
        if (channels == 0 || buffer.data == nullptr) {
            continue;
        }
        // A buffer too small for one frame is left alone, but its channels still count.
        if (channels * kSampleBytes <= buffer.dataByteSize) {
            float* out = static_cast<float*>(buffer.data);
            const std::size_t frames = buffer.dataByteSize / (channels * kSampleBytes);
            applyGain(pass, out, frames, channels, base);
            if (equalizing) {
                equalize(out, frames, channels, base, set, *context.equalizer);
            }
            const bool keepsEnvelope = k < GainControl::kEnvelopeCount;
            const float envelope =
                limit(out, frames, channels, keepsEnvelope ? control.envelope(k) : 0.0f);
            if (keepsEnvelope) {
                control.setEnvelope(k, envelope);
            }
        }
        base += channels;
    }
    // The next cycle starts where this one ended, so a change is ramped over exactly one cycle.
    control.setCurrent(pass.target);
}

}  // namespace quorvane
