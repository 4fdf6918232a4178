#include "audio/RenderTap.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

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

// What the gain pass needs to know about the cycle.
struct GainPass {
    std::span<const AudioBufferView> input;
    std::size_t firstTap;
    std::uint32_t tapBufferCount;
    float current;
    float target;
    bool equalizing;
    float preamp;
};

float sanitized(float x) {
    // A stray infinity or NaN from an app would stay in the filter memory for good.
    return std::isfinite(x) ? x : 0.0f;
}

// gain × x, then × the preamp when equalizing, for `count` samples `stride` apart. The gain is
// `current` throughout, or a straight line from `current` at frame 0 towards `target`, which it
// reaches at the first frame of the next cycle.
template <bool kRamps, bool kEqualizing>
void scale(const GainPass& pass, const float* in, std::size_t inStride, float* out,
           std::size_t outStride, std::size_t count, std::size_t frames) {
    for (std::size_t f = 0; f < count; ++f) {
        const float gain = kRamps ? pass.current + (pass.target - pass.current) *
                                                       static_cast<float>(f) /
                                                       static_cast<float>(frames)
                                  : pass.current;
        float s = gain * sanitized(in[f * inStride]);
        if constexpr (kEqualizing) {
            s *= pass.preamp;
        }
        out[f * outStride] = s;
    }
}

template <bool kRamps>
void scale(const GainPass& pass, const float* in, std::size_t inStride, float* out,
           std::size_t outStride, std::size_t count, std::size_t frames) {
    if (pass.equalizing) {
        scale<kRamps, true>(pass, in, inStride, out, outStride, count, frames);
    } else {
        scale<kRamps, false>(pass, in, inStride, out, outStride, count, frames);
    }
}

void applyGain(const GainPass& pass, float* out, std::size_t frames, std::size_t channels,
               std::size_t base) {
    const bool ramps = pass.target != pass.current;
    // The usual case, an interleaved tap laid out like the output buffer at a steady gain:
    // one run over all samples.
    if (!ramps && pass.tapBufferCount == 1 && base == 0 && pass.firstTap < pass.input.size() &&
        pass.input[pass.firstTap].numberChannels == channels) {
        const Source source = sourceFor(pass.input, pass.firstTap, 1, 0);
        const std::size_t available = std::min(frames, source.frames) * channels;
        if (source.data) {
            scale<false>(pass, source.data, 1, out, 1, available, frames);
        }
        std::fill(out + (source.data ? available : 0), out + frames * channels, 0.0f);
        return;
    }
    for (std::size_t c = 0; c < channels; ++c) {
        const Source source = sourceFor(pass.input, pass.firstTap, pass.tapBufferCount, base + c);
        const std::size_t available = std::min(frames, source.frames);
        if (ramps) {
            scale<true>(pass, source.data, source.stride, out + c, channels, available, frames);
        } else {
            scale<false>(pass, source.data, source.stride, out + c, channels, available, frames);
        }
        for (std::size_t f = available; f < frames; ++f) {
            out[f * channels + c] = 0.0f;
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
// channel) lane is independent, and the compiler runs the lanes side by side in vectors. Each
// lane still computes exactly what the frame-by-frame loop computes, in the same order.
//
// Between steps each section's output moves on to the next section's input. The lanes are
// ordered so that this move is a whole number of 4-float vectors: moving by a part of a vector
// would make the next step's loads straddle the moves' stores, which processors cannot forward
// and wait for instead. The bands are split into H runs that share each vector (band j + J·h at
// row j), and padded with sections that pass the signal through exactly (b0 = 1, the rest 0)
// when 10 does not split evenly.
template <std::size_t N>
struct Lanes {
    static constexpr std::size_t kRuns = 4 / std::gcd(N, std::size_t{4});  // H
    static constexpr std::size_t kRows = (kBands + kRuns - 1) / kRuns;     // J
    static constexpr std::size_t kSections = kRows * kRuns;
    static constexpr std::size_t kCount = kSections * N;
    // How far a section's lanes are from the next section's, except from the last row.
    static constexpr std::size_t kStride = kRuns * N;

    static constexpr std::size_t lane(std::size_t section, std::size_t channel) {
        return ((section % kRows) * kRuns + section / kRows) * N + channel;
    }

    alignas(16) float b0[kCount], b1[kCount], b2[kCount], a1[kCount], a2[kCount];
    alignas(16) float x1[kCount], x2[kCount], y1[kCount], y2[kCount];
    alignas(16) float x[kCount], y[kCount];
};

template <std::size_t N>
inline void compute(Lanes<N>& s, std::size_t l) {
    const float y = s.b0[l] * s.x[l] + s.b1[l] * s.x1[l] + s.b2[l] * s.x2[l] - s.a1[l] * s.y1[l] -
                    s.a2[l] * s.y2[l];
    s.x2[l] = s.x1[l];
    s.x1[l] = s.x[l];
    s.y2[l] = s.y1[l];
    s.y1[l] = y;
    s.y[l] = y;
}

// After a step: each section's output becomes the next section's input, the next frame enters
// the first section, and the last section's output is final.
template <std::size_t N>
inline void advance(Lanes<N>& s, float* out, std::size_t t, std::size_t frames) {
    using L = Lanes<N>;
    constexpr std::size_t kLastRow = L::kCount - L::kStride;
    if (t + 1 >= L::kSections) {
        float* finished = out + (t + 1 - L::kSections) * N;
        for (std::size_t c = 0; c < N; ++c) {
            finished[c] = s.y[L::kCount - N + c];
        }
    }
    for (std::size_t l = 0; l < kLastRow; ++l) {
        s.x[L::kStride + l] = s.y[l];
    }
    // The first vector: the next frame, then each run continuing from the last row into the
    // top of the next run. It is put together from parts, so each step computes it last, long
    // after these stores.
    if (t + 1 < frames) {
        const float* next = out + (t + 1) * N;
        for (std::size_t c = 0; c < N; ++c) {
            s.x[c] = next[c];
        }
    }
    for (std::size_t l = 0; l + N < L::kStride; ++l) {
        s.x[N + l] = s.y[kLastRow + l];
    }
}

template <std::size_t N>
void equalizeLanes(float* out, std::size_t frames, std::size_t base, const CoefficientSet& set,
                   EqualizerState& state) {
    using L = Lanes<N>;
    L s;
    for (std::size_t b = 0; b < L::kSections; ++b) {
        static constexpr float kPassThrough[5] = {1.0f, 0.0f, 0.0f, 0.0f, 0.0f};
        const float* k = b < kBands ? &set[1 + 5 * b] : kPassThrough;
        for (std::size_t c = 0; c < N; ++c) {
            const std::size_t l = L::lane(b, c);
            const EqualizerState::Section m =
                b < kBands ? state.memory[base + c][b] : EqualizerState::Section{};
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
    // Step t runs the sections that have a frame: section b on frame t − b.
    const std::size_t steps = frames + L::kSections - 1;
    for (std::size_t t = 0; t < steps;) {
        if (t + 1 >= L::kSections && t < frames) {
            for (; t < frames; ++t) {
                for (std::size_t l = L::kStride; l < L::kCount; ++l) {
                    compute(s, l);
                }
                for (std::size_t l = 0; l < L::kStride; ++l) {
                    compute(s, l);
                }
                advance(s, out, t, frames);
            }
            continue;
        }
        const std::size_t first = t >= frames ? t - frames + 1 : 0;
        const std::size_t last = std::min(t, L::kSections - 1);
        for (std::size_t b = first; b <= last; ++b) {
            for (std::size_t c = 0; c < N; ++c) {
                compute(s, L::lane(b, c));
            }
        }
        advance(s, out, t, frames);
        ++t;
    }
    for (std::size_t b = 0; b < kBands; ++b) {
        for (std::size_t c = 0; c < N; ++c) {
            const std::size_t l = L::lane(b, c);
            state.memory[base + c][b] = {s.x1[l], s.x2[l], s.y1[l], s.y2[l]};
        }
    }
}

// A coefficient set caught between two quick updates, or any other upset, can leave NaN or
// infinity in a channel's filter memory, where the recursion would keep it for good and silence
// the tap until it is rebuilt. Checked once per buffer, not per sample: a channel whose memory
// is no longer finite starts again from rest, and its samples of this buffer are silence.
void recover(float* out, std::size_t frames, std::size_t channels, std::size_t base,
             EqualizerState& state) {
    // Channels past the eighth share its memory, so every channel is judged by its memory as it
    // was during the buffer, before any of them is reset.
    std::array<bool, EqualizerState::kChannels> upset{};
    for (std::size_t m = std::min(base, EqualizerState::kChannels - 1);
         m < std::min(base + channels, EqualizerState::kChannels); ++m) {
        float sum = 0.0f;
        for (const EqualizerState::Section& section : state.memory[m]) {
            sum += section.x1 + section.x2 + section.y1 + section.y2;
        }
        upset[m] = !std::isfinite(sum);
    }
    for (std::size_t c = 0; c < channels; ++c) {
        if (!upset[std::min(base + c, EqualizerState::kChannels - 1)]) {
            continue;
        }
        for (std::size_t f = 0; f < frames; ++f) {
            out[f * channels + c] = 0.0f;
        }
    }
    for (std::size_t m = 0; m < EqualizerState::kChannels; ++m) {
        if (upset[m]) {
            state.memory[m] = {};
        }
    }
}

void equalize(float* out, std::size_t frames, std::size_t channels, std::size_t base,
              const CoefficientSet& set, EqualizerState& state) {
    // Channels from the eighth on share memory, so only the frame-by-frame order is right there.
    if (base + channels > EqualizerState::kChannels) {
        equalizeFrames(out, frames, channels, base, set, state);
        recover(out, frames, channels, base, state);
        return;
    }
    using Kernel =
        void (*)(float*, std::size_t, std::size_t, const CoefficientSet&, EqualizerState&);
    static constexpr Kernel kKernels[] = {&equalizeLanes<1>, &equalizeLanes<2>, &equalizeLanes<3>,
                                          &equalizeLanes<4>, &equalizeLanes<5>, &equalizeLanes<6>,
                                          &equalizeLanes<7>, &equalizeLanes<8>};
    kKernels[channels - 1](out, frames, base, set, state);
    recover(out, frames, channels, base, state);
}

// Peaks, envelope, then the samples, a block of frames at a time: only the envelope is a chain
// from frame to frame, so the other two steps run at full speed. Returns the envelope after the
// last frame.
template <std::size_t N>
float limit(float* out, std::size_t frames, std::size_t runtimeChannels, float envelope) {
    const std::size_t channels = N > 0 ? N : runtimeChannels;
    constexpr std::size_t kBlock = 64;
    float factors[kBlock];
    for (std::size_t first = 0; first < frames; first += kBlock) {
        const std::size_t count = std::min(kBlock, frames - first);
        float* block = out + first * channels;
        for (std::size_t f = 0; f < count; ++f) {
            float peak = 0.0f;
            for (std::size_t c = 0; c < channels; ++c) {
                peak = std::max(peak, std::abs(block[f * channels + c]));
            }
            factors[f] = peak;
        }
        for (std::size_t f = 0; f < count; ++f) {
            const float peak = factors[f];
            envelope = peak > envelope ? peak : kRelease * envelope + kReleaseComplement * peak;
            factors[f] = envelope > kCeiling ? kCeiling / envelope : 1.0f;
        }
        for (std::size_t f = 0; f < count; ++f) {
            for (std::size_t c = 0; c < channels; ++c) {
                float& sample = block[f * channels + c];
                sample = std::clamp(sample * factors[f], -1.0f, 1.0f);
            }
        }
    }
    return envelope;
}

float limit(float* out, std::size_t frames, std::size_t channels, float envelope) {
    switch (channels) {
        case 1:
            return limit<1>(out, frames, 1, envelope);
        case 2:
            return limit<2>(out, frames, 2, envelope);
        default:
            return limit<0>(out, frames, channels, envelope);
    }
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
                // A NaN envelope would never compare greater or smaller again.
                control.setEnvelope(k, std::isfinite(envelope) ? envelope : 0.0f);
            }
        }
        base += channels;
    }
    // The next cycle starts where this one ended, so a change is ramped over exactly one cycle.
    control.setCurrent(pass.target);
}

}  // namespace quorvane
