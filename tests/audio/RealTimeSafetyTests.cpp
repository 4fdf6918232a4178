// Proof that rendering is real-time safe: it allocates nothing, and it shares only atomics with
// the main thread (the tsan preset runs the second test under ThreadSanitizer).
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <thread>

#include "audio/AppAudioTap.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerPreset.hpp"
#include "audio/RenderTap.hpp"
#include "support/AllocationCounter.hpp"
#include "support/AudioBuffers.hpp"
#include "support/FakeAudioHardware.hpp"

namespace quorvane {
namespace {

void fillNoise(AudioBuffers& buffers, std::uint32_t& seed) {
    for (auto& buffer : buffers.samples) {
        for (float& s : buffer) {
            seed = seed * 1664525u + 1013904223u;
            s = static_cast<float>(seed >> 8) / 4194304.0f - 2.0f;  // up to ±2: the limiter works
        }
    }
}

// Through the tap's own callback, as the HAL calls it: interleaved and one buffer per channel,
// equalizer on, the gain changing between cycles.
TEST(RealTimeSafety, RenderingTenThousandBuffersAllocatesNothing) {
    FakeAudioHardware hal;
    hal.addDevice(40, "speakers", "Speakers");
    EqualizerEngine engine;
    engine.update(EqualizerPreset::named("Loudness")->gains, -6.0, 48000);
    auto interleaved = AppAudioTap::capturing(hal, engine, {7}, 40, 1.0f, true);
    hal.tapFormat.formatFlags |= hal::kFormatFlagIsNonInterleaved;
    auto split = AppAudioTap::capturing(hal, engine, {8}, 40, 1.0f, true);

    AudioBuffers stereoIn;
    stereoIn.add(2, 512);
    AudioBuffers splitIn;
    splitIn.add(1, 512);
    splitIn.add(1, 512);
    AudioBuffers stereoOut;
    stereoOut.add(2, 512);
    AudioBuffers splitOut;
    splitOut.add(1, 512);
    splitOut.add(1, 512);
    std::uint32_t seed = 1;
    fillNoise(stereoIn, seed);
    fillNoise(splitIn, seed);

    std::size_t allocations = 0;
    {
        const AllocationCounter counter;
        for (int cycle = 0; cycle < 5000; ++cycle) {
            interleaved->setGain(cycle % 2 == 0 ? 0.5f : 2.5f);
            split->setGain(cycle % 3 == 0 ? 0.0f : 1.0f);
            hal.render(interleaved->aggregateID(), stereoIn.span(), stereoOut.span());
            hal.render(split->aggregateID(), splitIn.span(), splitOut.span());
        }
        allocations = counter.count();
    }
    EXPECT_EQ(allocations, 0u);
    for (const float s : stereoOut[0]) {
        ASSERT_TRUE(std::abs(s) <= 1.0f);
    }
}

TEST(RealTimeSafety, RenderingWhileTheMainThreadChangesSettingsSharesOnlyAtomics) {
    EqualizerEngine engine;
    GainControl control(1.0f);
    EqualizerState state;
    const TapRenderContext context{1, &control, &state, &engine};
    std::atomic<bool> finished{false};
    std::atomic<bool> outOfRange{false};

    std::thread renderer([&] {
        AudioBuffers input;
        input.add(2, 256);
        AudioBuffers output;
        output.add(2, 256);
        std::uint32_t seed = 7;
        for (int cycle = 0; cycle < 2000; ++cycle) {
            fillNoise(input, seed);
            renderTap(context, input.span(), output.span());
            for (const float s : output[0]) {
                if (!(std::abs(s) <= 1.0f)) {
                    outOfRange = true;
                }
            }
        }
        finished = true;
    });
    const auto presets = EqualizerPreset::all();
    std::size_t changes = 0;
    while (!finished) {
        const auto& preset = presets[changes % presets.size()];
        engine.update(preset.gains, -static_cast<double>(changes % 7), changes % 2 ? 44100 : 48000);
        control.setTarget(static_cast<float>(changes % 4) * 0.75f);
        ++changes;
    }
    renderer.join();
    EXPECT_FALSE(outOfRange);
    EXPECT_GT(changes, 0u);
}

}  // namespace
}  // namespace quorvane
