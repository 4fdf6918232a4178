#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "audio/AudioProcessMonitor.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerPreset.hpp"
#include "audio/RenderTap.hpp"
#include "support/AudioBuffers.hpp"
#include "support/FakePlatform.hpp"
#include "support/ReferenceRender.hpp"

namespace quorvane {
namespace {

constexpr std::size_t kFrames = 512;
constexpr double kSampleRate = 48000;

// One tap rendering stereo 48 kHz music-like noise with "Loudness" and a preamp of −6 dB.
struct LoudnessTap {
    LoudnessTap() : control(1.0f), context{1, &control, &state, &engine} {
        engine.update(EqualizerPreset::named("Loudness")->gains, -6.0, kSampleRate);
        input.add(2, kFrames);
        output.add(2, kFrames);
        std::uint32_t seed = 99;
        for (float& s : input[0]) {
            seed = seed * 1664525u + 1013904223u;
            s = (static_cast<float>(seed >> 8) / 8388608.0f - 1.0f) * 0.5f;
        }
    }

    EqualizerEngine engine;
    GainControl control;
    EqualizerState state;
    TapRenderContext context;
    AudioBuffers input;
    AudioBuffers output;
};

template <auto kRender>
void renderLoudness(benchmark::State& state) {
    LoudnessTap tap;
    for (auto _ : state) {
        kRender(tap.context, tap.input.span(), tap.output.span());
        benchmark::DoNotOptimize(tap.output[0].data());
        benchmark::ClobberMemory();
    }
    const double frames = static_cast<double>(state.iterations()) * kFrames;
    state.counters["ns_per_frame"] = benchmark::Counter(
        frames * 1e-9, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["realtime_x"] =
        benchmark::Counter(frames / kSampleRate, benchmark::Counter::kIsRate);
}
BENCHMARK(renderLoudness<&renderTap>)->Name("BM_RenderLoudnessStereo48k");
// The same cycle as a plain loop in the order the formulas are written: the baseline.
BENCHMARK(renderLoudness<&referenceRender>)->Name("BM_PlainLoopLoudnessStereo48k");

// What every slider movement costs on the main thread.
void BM_EqualizerUpdate(benchmark::State& state) {
    EqualizerEngine engine;
    const auto& gains = EqualizerPreset::named("Loudness")->gains;
    double preamp = 0;
    for (auto _ : state) {
        engine.update(gains, preamp, kSampleRate);
        preamp = preamp > -6 ? preamp - 0.5 : 0;
    }
}
BENCHMARK(BM_EqualizerUpdate);

// The once-a-second poll with 50 processes of 25 applications, nothing changed.
void BM_MonitorRefresh50Processes(benchmark::State& state) {
    FakePlatform fakes;
    for (int i = 0; i < 50; ++i) {
        const int app = i / 2;
        const std::string bundle = "/Applications/App " + std::to_string(app) + ".app";
        fakes.processFacts.executables[1000 + i] =
            bundle + (i % 2 ? "/Contents/MacOS/Helper" : "/Contents/MacOS/App");
        fakes.processFacts.bundleIDs[bundle] = "com.example.app" + std::to_string(app);
        fakes.audioHardware.addProcess(static_cast<AudioObjectID>(100 + i), 1000 + i,
                                       "com.example.app" + std::to_string(app), i % 7 == 0);
    }
    AudioProcessMonitor monitor(fakes.audioHardware, fakes.processFacts, fakes.preferences,
                                fakes.scheduler);
    monitor.start();
    for (auto _ : state) {
        monitor.refresh();
        benchmark::DoNotOptimize(monitor.apps().data());
    }
    state.counters["apps"] = static_cast<double>(monitor.apps().size());
}
BENCHMARK(BM_MonitorRefresh50Processes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvane
