#pragma once

#include <chrono>

#include "platform/Scheduler.hpp"
#include "portable/TimerQueue.hpp"

namespace quorvane {

// A run loop on the steady clock for the command line: timers run when `run` is called, on the
// calling thread, never on a thread of their own.
class SteadyScheduler : public Scheduler {
public:
    SteadyScheduler();

    Seconds now() const override;
    double date() const override;
    Timer after(Seconds delay, std::function<void()> action) override;
    Timer every(Seconds interval, std::function<void()> action) override;
    Timer post(std::function<void()> action) override;

    // Runs what is due, sleeping between deadlines, until nothing is left or `limit` passed.
    void run(Seconds limit);

private:
    std::chrono::steady_clock::time_point start_;
    TimerQueue queue_;
};

}  // namespace quorvane
