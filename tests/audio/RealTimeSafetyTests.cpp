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

// Through the taps' own callbacks, as the HAL calls them: interleaved and one buffer per
// channel, equalizer on, the gains changing every cycle.
TEST(RealTimeSafety, RenderingTenThousandBuffersAllocatesNothing) {
    FakeAudioHardware hal;
    hal.addDevice(40, "speakers", "Speakers");
    EqualizerEngine engine;
    engine.update(EqualizerPreset::named("Loudness")->gains, -6.0, 48000);
    auto interleaved = AppAudioTap::capturing(hal, engine, {7}, 40, 1.0f, true);
    hal.tapFormat.formatFlags |= hal::kFormatFlagIsNonInterleaved;
    auto split = AppAudioTap::capturing(hal, engine, {8}, 40, 1.0f, true);
    AudioBuffers stereo;
    stereo.add(2, 512);
    AudioBuffers channels;
    channels.add(1, 512);
    channels.add(1, 512);
    std::uint32_t seed = 1;
    fillNoise(stereo, seed);
    fillNoise(channels, seed);

    const AllocationCounter counter;
    for (int cycle = 0; cycle < 5000; ++cycle) {
        interleaved->setGain(cycle % 2 == 0 ? 0.5f : 2.5f);
        split->setGain(cycle % 3 == 0 ? 0.0f : 1.0f);
        hal.render(interleaved->aggregateID(), stereo.span(), stereo.span());
        hal.render(split->aggregateID(), channels.span(), channels.span());
    }
    EXPECT_EQ(counter.count(), 0u);
}

TEST(RealTimeSafety, RenderingWhileTheMainThreadChangesSettingsSharesOnlyAtomics) {
    EqualizerEngine engine;
    GainControl control(1.0f);
    EqualizerState state;
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
            renderTap({1, &control, &state, &engine}, input.span(), output.span());
            for (const float s : output[0]) {
                outOfRange = outOfRange || !(std::abs(s) <= 1.0f);
            }
        }
        finished = true;
    });
    const auto presets = EqualizerPreset::all();
    for (std::size_t change = 0; !finished; ++change) {
        engine.update(presets[change % presets.size()].gains, -static_cast<double>(change % 7),
                      change % 2 ? 44100 : 48000);
        control.setTarget(static_cast<float>(change % 4) * 0.75f);
    }
    renderer.join();
    EXPECT_FALSE(outOfRange);
}

}  // namespace
}  // namespace quorvane
