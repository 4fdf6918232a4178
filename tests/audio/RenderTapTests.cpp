#include "audio/RenderTap.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

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
        const float expected = 0.5f * (1.0f - static_cast<float>(f) / 100.0f);
        ASSERT_NEAR(output[0][2 * f], expected, 1e-6f) << "frame " << f;
        ASSERT_EQ(output[0][2 * f + 1], output[0][2 * f]);
    }
    EXPECT_EQ(tap.control.current(), 0.0f);

    tap.render(input, output);
    EXPECT_EQ(output[0][0], 0.0f) << "the next buffer starts where the fade ended";
    EXPECT_EQ(output[0][199], 0.0f);
}

TEST(RenderTap, AnOutputBufferTooSmallForAFrameIsLeftAloneButAdvancesTheChannelBase) {
    Tap tap;
    AudioBuffers input;
    auto& interleaved = input.add(3, 8);
    for (std::size_t f = 0; f < 8; ++f) {
        for (std::size_t c = 0; c < 3; ++c) {
            input[0][f * 3 + c] = 0.1f * static_cast<float>(c + 1);
        }
    }
    (void)interleaved;
    AudioBuffers output;
    output.add(2, 1, 7.0f).dataByteSize = 4;  // room for half a frame
    output.add(0, 0);                         // no channels: skipped, adds nothing
    output.add(1, 8);
    tap.render(input, output);

    EXPECT_EQ(output[0], (std::vector<float>{7.0f, 7.0f}));
    for (const float sample : output[2]) {
        EXPECT_FLOAT_EQ(sample, 0.3f) << "the third output channel plays the third tap channel";
    }
}

TEST(RenderTap, MissingInputIsSilence) {
    // Interleaved: a stereo tap feeding four output channels, with fewer frames than the output.
    Tap interleaved;
    AudioBuffers input;
    input.add(1, 16, 0.9f);  // an input buffer of the device's own, before the tap's
    input.add(2, 3, 0.25f);
    AudioBuffers output;
    output.add(4, 5, 1.0f);
    interleaved.render(input, output);
    EXPECT_EQ(output[0], (std::vector<float>{0.25f, 0.25f, 0, 0, 0.25f, 0.25f, 0, 0, 0.25f, 0.25f,
                                             0,     0,     0, 0, 0,     0,     0, 0, 0,     0}));

    // One buffer per channel: the second channel's buffer has no data, the third has none at all.
    Tap split(1.0f, 2);
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
    auto& in = input.add(2, 512);
    AudioBuffers output;
    output.add(2, 512);
    const auto fill = [&](double amplitude, std::size_t cycle) {
        for (std::size_t f = 0; f < 512; ++f) {
            const double t = static_cast<double>(cycle * 512 + f) / 48000.0;
            const auto s =
                static_cast<float>(amplitude * std::sin(2 * std::numbers::pi * 1000 * t));
            input[0][2 * f] = s;
            input[0][2 * f + 1] = -s;
        }
    };
    (void)in;
    float loudPeak = 0;
    for (std::size_t cycle = 0; cycle < 10; ++cycle) {
        fill(1.5, cycle);
        tap.render(input, output);
        for (const float s : output[0]) {
            ASSERT_LE(std::abs(s), 0.95f + 1e-6f);
            loudPeak = std::max(loudPeak, std::abs(s));
        }
    }
    EXPECT_NEAR(loudPeak, 0.95f, 0.01f) << "the first peak is brought down to 0.95 at once";

    // Quiet again: the level comes back up slowly, never overshooting.
    float previousPeak = 0;
    for (std::size_t cycle = 10; cycle < 200; ++cycle) {
        fill(0.5, cycle);
        tap.render(input, output);
        float peak = 0;
        for (const float s : output[0]) {
            ASSERT_LE(std::abs(s), 1.0f);
            peak = std::max(peak, std::abs(s));
        }
        if (cycle == 10) {
            EXPECT_LT(peak, 0.35f) << "right after the loud part the quiet part is still held down";
        }
        EXPECT_GE(peak, previousPeak - 1e-4f);
        previousPeak = peak;
    }
    EXPECT_GT(previousPeak, 0.49f) << "released after about two seconds";
}

TEST(RenderTap, BuffersPastTheEighthKeepNoEnvelope) {
    constexpr std::uint32_t kBuffers = 10;
    Tap tap(1.0f, kBuffers);
    AudioBuffers input;
    AudioBuffers output;
    for (std::uint32_t k = 0; k < kBuffers; ++k) {
        input.add(1, 4, 0.5f);
        input[k][0] = 1.5f;
        output.add(1, 4);
    }
    tap.render(input, output);
    for (std::uint32_t k = 0; k < kBuffers; ++k) {
        input[k][0] = 0.5f;
    }
    tap.render(input, output);
    for (std::uint32_t k = 0; k < 8; ++k) {
        EXPECT_GT(tap.control.envelope(k), 1.4f);
        EXPECT_LT(output[k][0], 0.33f) << "buffer " << k << " remembers the peak";
    }
    EXPECT_EQ(output[8][0], 0.5f);
    EXPECT_EQ(output[9][0], 0.5f);
}

// The reordered equalizer must compute what the frame-by-frame formulas compute, for every
// layout: stereo, short buffers, a buffer per channel, more channels than filter memories, a
// gain ramp, state carried from cycle to cycle.
TEST(RenderTap, EqualizedOutputAgreesWithTheFrameByFrameFormulas) {
    struct Layout {
        std::vector<std::uint32_t> outputChannels;
        std::size_t frames;
        std::uint32_t tapBuffers;
    };
    const std::vector<Layout> layouts = {
        {{2}, 512, 1},   {{2}, 5, 1},     {{1, 1}, 64, 2}, {{8}, 33, 1},    {{3, 5}, 40, 1},
        {{1, 6}, 17, 1}, {{4, 4}, 12, 1}, {{7}, 30, 1},    {{3, 7}, 40, 1}, {{10}, 20, 1}};
    const auto& loudness = *EqualizerPreset::named("Loudness");
    for (const Layout& layout : layouts) {
        Tap fast(0.8f, layout.tapBuffers);
        Tap plain(0.8f, layout.tapBuffers);
        for (Tap* tap : {&fast, &plain}) {
            tap->engine.update(loudness.gains, -6.0, 44100);
        }
        std::uint32_t totalChannels = 0;
        for (const auto n : layout.outputChannels) {
            totalChannels += n;
        }
        AudioBuffers input;
        if (layout.tapBuffers == 1) {
            input.add(totalChannels, layout.frames);
        } else {
            for (std::uint32_t c = 0; c < layout.tapBuffers; ++c) {
                input.add(1, layout.frames);
            }
        }
        AudioBuffers fastOut;
        AudioBuffers plainOut;
        for (const auto n : layout.outputChannels) {
            fastOut.add(n, layout.frames);
            plainOut.add(n, layout.frames);
        }
        std::uint32_t seed = 12345;
        for (int cycle = 0; cycle < 6; ++cycle) {
            for (auto& buffer : input.samples) {
                for (float& s : buffer) {
                    seed = seed * 1664525u + 1013904223u;
                    s = static_cast<float>(seed >> 8) / 8388608.0f - 1.0f;
                }
            }
            if (cycle == 2) {
                fast.control.setTarget(1.7f);
                plain.control.setTarget(1.7f);
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
