#include "portable/SteadyScheduler.hpp"

#include <algorithm>
#include <thread>

namespace quorvane {

namespace {
// Seconds between the Unix epoch and 2001-01-01 00:00:00 UTC, the platform's reference date.
constexpr double kReferenceDateOffset = 978307200.0;
}  // namespace

SteadyScheduler::SteadyScheduler() : start_(std::chrono::steady_clock::now()) {}

Seconds SteadyScheduler::now() const {
    return std::chrono::steady_clock::now() - start_;
}

double SteadyScheduler::date() const {
    const Seconds sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return sinceEpoch.count() - kReferenceDateOffset;
}

Timer SteadyScheduler::after(Seconds delay, std::function<void()> action) {
    return queue_.schedule(now() + std::max(delay, Seconds::zero()), Seconds::zero(),
                           std::move(action));
}

Timer SteadyScheduler::every(Seconds interval, std::function<void()> action) {
    return queue_.schedule(now() + interval, interval, std::move(action));
}

Timer SteadyScheduler::post(std::function<void()> action) {
    return queue_.schedule(now(), Seconds::zero(), std::move(action));
}

void SteadyScheduler::run(Seconds limit) {
    const Seconds end = now() + limit;
    while (auto next = queue_.nextDeadline()) {
        if (*next > end) {
            break;
        }
        if (*next > now()) {
            std::this_thread::sleep_for(*next - now());
        }
        queue_.runNext(now());
    }
}

}  // namespace quorvane
