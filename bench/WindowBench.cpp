#include <benchmark/benchmark.h>

#include "tools/windows/WindowDragEngine.hpp"
#include "tools/windows/WindowSnapPlan.hpp"

namespace quorvane {
namespace {

// One mouse-dragged event during a resize, half of them inside the 1/120 s throttle.
void BM_WindowDragPerDraggedEvent(benchmark::State& state) {
    WindowDragEngine engine;
    const Rect window(100, 100, 800, 600);
    const WindowDragEngine::WindowFrameAt frameAt = [&](Point) { return std::optional(window); };
    engine.handle(EventType::rightMouseDown, 0x140000, {790, 690}, Seconds(0), frameAt);
    double t = 0;
    double x = 790;
    for (auto _ : state) {
        t += 0.005;
        x += 0.5;
        auto outcome =
            engine.handle(EventType::rightMouseDragged, 0x140000, {x, 690}, Seconds(t), frameAt);
        benchmark::DoNotOptimize(outcome);
    }
}
BENCHMARK(BM_WindowDragPerDraggedEvent);

// The geometry of one snap action on a three-display layout.
void BM_SnapGeometryPerAction(benchmark::State& state) {
    const DisplayLayout displays({{{0, 0, 1440, 900}, {0, 0, 1440, 875}},
                                  {{-1080, -500, 1080, 1920}, {-1080, -500, 1080, 1895}},
                                  {{0, 900, 2560, 1440}, {0, 900, 2560, 1415}}});
    const Rect window(200, 200, 1000, 501);
    std::size_t i = 0;
    for (auto _ : state) {
        const auto action = kAllSnapActions[i++ % kAllSnapActions.size()];
        auto plan = WindowSnapPlan::make(action, window, displays);
        benchmark::DoNotOptimize(plan);
    }
}
BENCHMARK(BM_SnapGeometryPerAction);

}  // namespace
}  // namespace quorvane
