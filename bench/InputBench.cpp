#include <benchmark/benchmark.h>

#include "input/EventTap.hpp"
#include "input/KeyCombo.hpp"
#include "support/FakeEventSystem.hpp"

namespace quorvane {
namespace {

// One mouse-drag sample through a tap to a handler that looks at it and lets it pass: the cost
// Quorvane adds to every event of the types a tool asked for.
void BM_EventTapDeliversToAPassingHandler(benchmark::State& state) {
    FakeEventSystem system;
    std::int64_t seen = 0;
    auto tap =
        EventTap::create(system, {EventType::leftMouseDragged}, [&seen](EventType, Event& event) {
            seen += event.integerField(eventField::sourceUserData);
            return true;
        });
    auto& callback = system.taps.at(0)->callback;
    FakeEvent event;
    event.eventType = EventType::leftMouseDragged;
    for (auto _ : state) {
        benchmark::DoNotOptimize(callback(EventType::leftMouseDragged, event));
    }
    benchmark::DoNotOptimize(seen);
}
BENCHMARK(BM_EventTapDeliversToAPassingHandler);

// A key press while a shortcut is being recorded, or checked against a tool's trigger.
void BM_KeyComboFromKeyDown(benchmark::State& state) {
    const FakeEvent named = FakeEvent::keyDown(96, 0, "");
    const FakeEvent typed =
        FakeEvent::keyDown(40, modifierFlag::command | modifierFlag::option, "k");
    const FakeEvent& event = state.range(0) == 0 ? named : typed;
    for (auto _ : state) {
        benchmark::DoNotOptimize(KeyCombo::make(event));
    }
}
BENCHMARK(BM_KeyComboFromKeyDown)->Arg(0)->Arg(1)->ArgName("typedCharacter");

}  // namespace
}  // namespace quorvane
