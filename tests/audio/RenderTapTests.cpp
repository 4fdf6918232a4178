#include "audio/RenderTap.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerPreset.hpp"
#include "support/AudioBuffers.hpp"
#include "support/ReferenceRender.hpp"

namespace quorvane {
namespace {

// One tap's real-time state around the render procedure.
struct Tap {
    explicit Tap(float gain = 1.0f, std::uint32_t tapBuffers = 1)
        : control(gain), context{tapBuffers, &control, &state, &engine} {}
    void render(AudioBuffers& input, AudioBuffers& output) {
        renderTap(context, input.span(), output.span());
    }

    EqualizerEngine engine;
    GainControl control;
    EqualizerState state;
    TapRenderContext context;
};

TEST(RenderTap, AGainChangeIsALinearFadeOverOneBuffer) {
    Tap tap(1.0f);
    AudioBuffers input;
    input.add(2, 100, 0.5f);
    AudioBuffers output;
    output.add(2, 100);
    tap.control.setTarget(0.0f);
    tap.render(input, output);
    for (std::size_t f = 0; f < 100; ++f) {
        ASSERT_NEAR(output[0][2 * f], 0.5f * (1.0f - static_cast<float>(f) / 100.0f), 1e-6f);
        ASSERT_EQ(output[0][2 * f + 1], output[0][2 * f]);
    }
    tap.render(input, output);
    EXPECT_EQ(output[0], std::vector<float>(200, 0.0f)) << "reaches 0 at the next buffer's start";
}

TEST(RenderTap, MissingInputIsSilenceAndABufferTooSmallForAFrameStillCountsItsChannels) {
    Tap interleaved;
    AudioBuffers input;
    input.add(1, 16, 0.9f);  // the device's own input, before the tap's
    input.add(3, 3, 0.25f);  // three channels, fewer frames than the output has
    input[1][2] = 0.75f;
    AudioBuffers output;
    output.add(2, 1, 7.0f).dataByteSize = 4;  // room for half a frame
    output.add(0, 0);                         // no channels: skipped
    output.add(2, 4, 1.0f);
    interleaved.render(input, output);
    EXPECT_EQ(output[0], (std::vector<float>{7.0f, 7.0f}));
    EXPECT_EQ(output[2], (std::vector<float>{0.75f, 0, 0.25f, 0, 0.25f, 0, 0, 0}))
        << "the third output channel plays the third tap channel, the fourth has none";

    Tap split(1.0f, 2);  // one buffer per channel: the second has no data, the third is missing
    AudioBuffers channels;
    channels.add(1, 4, 0.5f);
    channels.add(1, 4, 0.5f).data = nullptr;
    AudioBuffers outputs;
    for (int c = 0; c < 3; ++c) {
        outputs.add(1, 4, 1.0f);
    }
    split.render(channels, outputs);
    EXPECT_EQ(outputs[0], std::vector<float>(4, 0.5f));
    EXPECT_EQ(outputs[1], std::vector<float>(4, 0.0f));
    EXPECT_EQ(outputs[2], std::vector<float>(4, 0.0f));
}

TEST(RenderTap, ALoudPeakIsLimitedAtOnceAndReleasedSlowly) {
    Tap tap;
    AudioBuffers input;
    input.add(2, 512);
    AudioBuffers output;
    output.add(2, 512);
    float peak = 0;
    for (std::size_t cycle = 0; cycle < 200; ++cycle) {
        const float amplitude = cycle < 10 ? 1.5f : 0.5f;
        for (std::size_t f = 0; f < 512; ++f) {
            const float s = amplitude * std::sin(0.1309f * static_cast<float>(cycle * 512 + f));
            input[0][2 * f] = s;
            input[0][2 * f + 1] = -s;
        }
        tap.render(input, output);
        const float previous = peak;
        peak = 0;
        for (const float s : output[0]) {
            peak = std::max(peak, std::abs(s));
        }
        ASSERT_LE(peak, cycle < 10 ? 0.95f + 1e-6f : 1.0f);
        if (cycle == 0) {
            EXPECT_NEAR(peak, 0.95f, 0.01f) << "the first peak is brought down to 0.95 at once";
        } else if (cycle == 10) {
            EXPECT_LT(peak, 0.35f) << "just after the loud part the quiet one is still held down";
        } else if (cycle > 10) {
            EXPECT_GE(peak, previous - 1e-4f) << "and comes back up slowly";
        }
    }
    EXPECT_GT(peak, 0.49f) << "released after about two seconds";
}

TEST(RenderTap, AfterAPeakTheLimiterLetsGoByTheSameFractionEverySilentFrame) {
    Tap tap;
    AudioBuffers peak;
    peak.add(1, 1, 2.0f);
    AudioBuffers silence;
    silence.add(1, 4800);
    AudioBuffers probe;
    probe.add(1, 1, 0.5f);
    AudioBuffers frame;
    frame.add(1, 1);
    AudioBuffers frames;
    frames.add(1, 4800);
    tap.render(peak, frame);
    EXPECT_EQ(frame[0][0], 0.95f);
    tap.render(silence, frames);
    // A tenth of a second at 48 kHz takes a peak of 2 about halfway back to the ceiling.
    const double released = 2.0 * std::pow(0.99986, 4800);
    EXPECT_NEAR(tap.control.envelope(0), released, released * 1e-3);
    tap.render(probe, frame);
    EXPECT_NEAR(frame[0][0], 0.5 * 0.95 / (0.99986 * released + 0.00014 * 0.5), 1e-3)
        << "the next sound is still held down by what is left of the peak";
}

TEST(RenderTap, BuffersPastTheEighthKeepNoEnvelope) {
    Tap tap(1.0f, 10);
    AudioBuffers input;
    AudioBuffers output;
    for (std::size_t k = 0; k < 10; ++k) {
        input.add(1, 4, 0.5f);
        input[k][0] = 1.5f;
        output.add(1, 4);
    }
    tap.render(input, output);
    for (std::size_t k = 0; k < 10; ++k) {
        input[k][0] = 0.5f;
    }
    tap.render(input, output);
    for (std::size_t k = 0; k < 8; ++k) {
        EXPECT_LT(output[k][0], 0.33f) << "buffer " << k << " remembers the peak";
    }
    EXPECT_EQ(output[8][0], 0.5f);
    EXPECT_EQ(output[9][0], 0.5f);
}

// The reordered equalizer must compute what the frame-by-frame formulas compute, for every
// layout: 1 to 8 channels, short buffers, a buffer per channel, more channels than filter
// memories, a gain ramp, state carried from cycle to cycle.
TEST(RenderTap, FilterMemoryAndEnvelopeUpsetByNaNRecoverWithinOneBuffer) {
    // Two outputs: an interleaved stereo one and ten channels, where channels share memory.
    for (const std::uint32_t channels : {2u, 10u}) {
        Tap tap;
        tap.engine.update(EqualizerPreset::all()[5].gains, -6.0, 48000);
        AudioBuffers input;
        input.add(channels, 256, 0.25f);
        AudioBuffers output;
        output.add(channels, 256);
        tap.render(input, output);
        // With ten channels the last three share the eighth channel's memory.
        const std::size_t last = std::min<std::size_t>(channels, EqualizerState::kChannels) - 1;
        tap.state.memory[last][3].y1 = std::numeric_limits<float>::quiet_NaN();
        tap.state.memory[0][9].x2 = std::numeric_limits<float>::infinity();
        tap.control.setEnvelope(0, std::numeric_limits<float>::quiet_NaN());

        tap.render(input, output);
        for (const float sample : output[0]) {
            ASSERT_TRUE(std::isfinite(sample)) << channels << " channels: the upset buffer";
        }
        tap.render(input, output);
        for (std::size_t i = 0; i < output[0].size(); ++i) {
            ASSERT_TRUE(std::isfinite(output[0][i]) && output[0][i] != 0.0f)
                << channels << " channels, sample " << i << ": sound again on the next buffer";
        }
        EXPECT_TRUE(std::isfinite(tap.control.envelope(0)));
    }
}

TEST(RenderTap, EqualizedOutputAgreesWithTheFrameByFrameFormulas) {
    struct Layout {
        std::vector<std::uint32_t> outputChannels;
        std::size_t frames;
        std::uint32_t tapBuffers;
    };
    const std::vector<Layout> layouts = {
        {{2}, 512, 1},   {{2}, 5, 1},     {{1, 1}, 64, 2}, {{8}, 33, 1},    {{3, 5}, 40, 1},
        {{1, 6}, 17, 1}, {{4, 4}, 12, 1}, {{7}, 30, 1},    {{3, 7}, 40, 1}, {{10}, 20, 1}};
    for (const Layout& layout : layouts) {
        Tap fast(0.8f, layout.tapBuffers);
        Tap plain(0.8f, layout.tapBuffers);
        AudioBuffers input;
        AudioBuffers fastOut;
        AudioBuffers plainOut;
        std::uint32_t total = 0;
        for (const auto n : layout.outputChannels) {
            fastOut.add(n, layout.frames);
            plainOut.add(n, layout.frames);
            total += n;
        }
        for (std::uint32_t k = 0; k < layout.tapBuffers; ++k) {
            input.add(layout.tapBuffers == 1 ? total : 1, layout.frames);
        }
        std::uint32_t seed = 12345;
        for (int cycle = 0; cycle < 6; ++cycle) {
            for (Tap* tap : {&fast, &plain}) {
                tap->engine.update(EqualizerPreset::all()[5 + cycle % 3].gains, -6.0, 44100);
                tap->control.setTarget(cycle == 2 ? 1.7f : tap->control.target());
            }
            for (auto& buffer : input.samples) {
                for (float& s : buffer) {
                    seed = seed * 1664525u + 1013904223u;
                    s = static_cast<float>(seed >> 8) / 8388608.0f - 1.0f;
                }
            }
            fast.render(input, fastOut);
            referenceRender(plain.context, input.span(), plainOut.span());
            for (std::size_t k = 0; k < fastOut.samples.size(); ++k) {
                for (std::size_t i = 0; i < fastOut[k].size(); ++i) {
                    ASSERT_NEAR(fastOut[k][i], plainOut[k][i], 1e-5f)
                        << "layout " << &layout - layouts.data() << ", cycle " << cycle;
                }
            }
        }
    }
}

}  // namespace
}  // namespace quorvane
