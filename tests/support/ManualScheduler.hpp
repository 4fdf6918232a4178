#pragma once

#include <algorithm>

#include "platform/Scheduler.hpp"
#include "portable/TimerQueue.hpp"

namespace quorvane {

// A scheduler whose clock moves only when a test says so. `advance` runs every callback that
// falls due on the way, in deadline order, with the clock standing at each one's deadline.
class ManualScheduler : public Scheduler {
public:
    Seconds now() const override { return now_; }
    double date() const override { return date_ + now_.count(); }
    Timer after(Seconds delay, std::function<void()> action) override {
        return queue_.schedule(now_ + std::max(delay, Seconds::zero()), Seconds::zero(),
                               std::move(action));
    }
    Timer every(Seconds interval, std::function<void()> action) override {
        return queue_.schedule(now_ + interval, interval, std::move(action));
    }
    Timer post(std::function<void()> action) override {
        return queue_.schedule(now_, Seconds::zero(), std::move(action));
    }

    void advance(Seconds by) {
        const Seconds end = now_ + by;
        while (auto next = queue_.nextDeadline()) {
            if (*next > end) {
                break;
            }
            now_ = std::max(now_, *next);
            queue_.runNext(now_);
        }
        now_ = end;
    }
    // Runs what is due now, including posted callbacks.
    void runPending() { advance(Seconds::zero()); }
    bool hasPending() const { return !queue_.empty(); }
    void setDate(double secondsSinceReferenceDate) {
        date_ = secondsSinceReferenceDate - now_.count();
    }

private:
    Seconds now_{0};
    double date_ = 800'000'000.0;  // a fixed day in 2026
    TimerQueue queue_;
};

}  // namespace quorvane
