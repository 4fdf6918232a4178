#pragma once

#include <chrono>
#include <functional>

#include "platform/Timer.hpp"

namespace quorvane {

using Seconds = std::chrono::duration<double>;

// Time and the main run loop. Every "wait, then do" in Quorvane goes through here, so tests can
// drive a quiet period or a retry schedule exactly and instantly.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    // Monotonic time since an arbitrary start; never jumps with the wall clock.
    virtual Seconds now() const = 0;
    // Wall-clock date: seconds since 2001-01-01 00:00:00 UTC.
    virtual double date() const = 0;

    [[nodiscard]] virtual Timer after(Seconds delay, std::function<void()> action) = 0;
    // Repeats every interval, the first time one interval from now.
    [[nodiscard]] virtual Timer every(Seconds interval, std::function<void()> action) = 0;
    // Runs on the main loop as soon as it is free, after the current callback returns.
    [[nodiscard]] virtual Timer post(std::function<void()> action) = 0;
};

}  // namespace quorvane
