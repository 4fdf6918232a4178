#include <benchmark/benchmark.h>

#include "tools/input/SmoothScrollEngine.hpp"

namespace quorvane {
namespace {

// One tick of the 120 Hz timer in the middle of a glide: the decay of both axes, the carry and
// the pixels to post. The glide is topped up whenever it runs low so every tick is a real one.
void BM_GlideFrame(benchmark::State& state) {
    SmoothScrollEngine engine;
    SmoothScrollEngine::Wheel wheel;
    wheel.vertical = 3;
    wheel.horizontal = 1;
    Seconds now(0);
    engine.wheel(wheel, now);
    for (auto _ : state) {
        now += SmoothScrollEngine::kFrameInterval;
        benchmark::DoNotOptimize(engine.frame(now));
        if (!engine.isGliding()) {
            engine.wheel(wheel, now);
        }
    }
}
BENCHMARK(BM_GlideFrame);

// A wheel notch arriving while a glide is under way (the common case when the wheel spins),
// and one that starts a glide and so also runs its first frame.
void BM_GlideWheelEvent(benchmark::State& state) {
    const bool starting = state.range(0) != 0;
    SmoothScrollEngine engine;
    SmoothScrollEngine::Wheel wheel;
    wheel.vertical = 1;
    Seconds now(0);
    engine.wheel(wheel, now);
    for (auto _ : state) {
        now += Seconds(0.001);
        if (starting) {
            engine.reset();
        }
        benchmark::DoNotOptimize(engine.wheel(wheel, now));
        if (!starting && engine.remaining().vertical > 1e6) {
            engine.reset();
            engine.wheel(wheel, now);
        }
    }
}
BENCHMARK(BM_GlideWheelEvent)->Arg(0)->Arg(1)->ArgName("startsGlide");

}  // namespace
}  // namespace quorvane
