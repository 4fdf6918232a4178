#include "portable/TimerQueue.hpp"

#include <gtest/gtest.h>

#include "support/ManualScheduler.hpp"

namespace quorvane {
namespace {

TEST(ManualScheduler, RunsDueCallbacksInDeadlineOrderWithTheClockAtEachDeadline) {
    ManualScheduler scheduler;
    std::vector<std::string> log;
    const auto stamp = [&](const char* what) {
        return [&, what] {
            log.push_back(std::string(what) + "@" + std::to_string(scheduler.now().count()));
        };
    };
    auto late = scheduler.after(Seconds(3), stamp("late"));
    auto early = scheduler.after(Seconds(1), stamp("early"));
    auto tick = scheduler.every(Seconds(2), stamp("tick"));
    auto posted = scheduler.post(stamp("posted"));
    Timer chained;
    auto chain = scheduler.after(
        Seconds(0.5), [&] { chained = scheduler.after(Seconds(0.5), stamp("chained")); });

    scheduler.advance(Seconds(4.5));
    EXPECT_EQ(log,
              (std::vector<std::string>{"posted@0.000000", "early@1.000000", "chained@1.000000",
                                        "tick@2.000000", "late@3.000000", "tick@4.000000"}));
    EXPECT_EQ(scheduler.now(), Seconds(4.5));
}

TEST(ManualScheduler, ACancelledOrDestroyedTimerNeverRuns) {
    ManualScheduler scheduler;
    int runs = 0;
    auto kept = scheduler.every(Seconds(1), [&] { ++runs; });
    {
        auto dropped = scheduler.after(Seconds(1), [&] { runs += 100; });
    }
    Timer self;
    self = scheduler.every(Seconds(1), [&] {
        runs += 10;
        self.cancel();  // a repeating timer may stop itself from inside its callback
    });
    scheduler.advance(Seconds(1));
    kept.cancel();
    kept.cancel();
    scheduler.advance(Seconds(5));
    EXPECT_EQ(runs, 11);
    EXPECT_FALSE(scheduler.hasPending());
}

}  // namespace
}  // namespace quorvane
