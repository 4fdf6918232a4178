#include "mac/MacPorts.hpp"

#include <functional>
#include <time.h>

#include <cassert>
#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

using Callback = CancellableAction<>;

Timer scheduleTimer(Seconds interval, bool repeats, std::function<void()> action) {
    auto callback = std::make_shared<Callback>(std::move(action));
    // unconfirmed: check on a Mac first (NSTimer's block API, -[NSRunLoop addTimer:forMode:],
    // +[NSRunLoop mainRunLoop] and NSRunLoopCommonModes are not in the fact sheet).
    void (^fire)(NSTimer*) = ^(NSTimer*) {
      assert([NSThread isMainThread]);
      // Invalidating the timer from inside the action may free this block.
      Callback::run(callback);
    };
    NSTimer* timer = [NSTimer timerWithTimeInterval:interval.count() repeats:repeats block:fire];
    // The common modes include the event-tracking mode, so menus and live resizing do not
    // hold timers back.
    [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
    return Timer([callback, timer] {
        callback->cancelled = true;
        // The run loop drops its reference, and with it the block and the action.
        [timer invalidate];
    });
}

// Time and the main run loop. Timers run in the run loop's common modes, so they keep firing
// while a menu is tracked or a window is live-resized. Main thread only.
class MacScheduler final : public Scheduler {
public:
    // CLOCK_UPTIME_RAW rather than std::chrono::steady_clock. It is mach_absolute_time in
    // nanoseconds and stands still while the Mac sleeps, as an NSTimer's countdown does; Apple's
    // steady_clock keeps counting through sleep (libc++ reads CLOCK_MONOTONIC_RAW there). With the
    // uptime clock, a deadline measured with now() and a timer of the same length agree after a
    // wake, instead of the deadline having passed while the timer still waits.
    // unconfirmed: check on a Mac first (clock_gettime_nsec_np is not in the fact sheet; the sleep
    // behaviour of NSTimer and of libc++'s steady_clock comes from third-party write-ups).
    Seconds now() const override {
        const std::uint64_t nanoseconds = clock_gettime_nsec_np(CLOCK_UPTIME_RAW);
        return std::chrono::nanoseconds(static_cast<std::int64_t>(nanoseconds));
    }

    double date() const override {
        // unconfirmed: check on a Mac first (CFAbsoluteTimeGetCurrent is not in the fact sheet).
        // It counts seconds since 2001-01-01 00:00:00 UTC, as the port promises.
        return CFAbsoluteTimeGetCurrent();
    }

    [[nodiscard]] Timer after(Seconds delay, std::function<void()> action) override {
        return scheduleTimer(delay, false, std::move(action));
    }

    [[nodiscard]] Timer every(Seconds interval, std::function<void()> action) override {
        return scheduleTimer(interval, true, std::move(action));
    }

    [[nodiscard]] Timer post(std::function<void()> action) override {
        auto callback = std::make_shared<Callback>(std::move(action));
        CFRunLoopRef mainLoop = CFRunLoopGetMain();
        // unconfirmed: check on a Mac first (CFRunLoopPerformBlock and CFRunLoopWakeUp are not in
        // the fact sheet). Common modes, so a post made during menu tracking still runs there.
        CFRunLoopPerformBlock(mainLoop, kCFRunLoopCommonModes, ^{
          assert([NSThread isMainThread]);
          Callback::run(callback);
        });
        // Queuing a block does not wake a sleeping run loop by itself.
        CFRunLoopWakeUp(mainLoop);
        return Timer([callback] { callback->cancelled = true; });
    }
};

}  // namespace

std::unique_ptr<Scheduler> makeMacScheduler() { return std::make_unique<MacScheduler>(); }

}  // namespace quorvane
