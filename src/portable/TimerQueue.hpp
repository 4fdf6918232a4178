#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "platform/Scheduler.hpp"

namespace quorvane {

// The timers of a single-threaded run loop, ordered by deadline (ties in the order they were
// scheduled). The clock belongs to the caller: a steady clock for the command line, a manual
// one in tests, so both run exactly the same ordering and cancellation rules.
class TimerQueue {
public:
    TimerQueue();

    // A zero interval schedules a one-shot timer.
    Timer schedule(Seconds deadline, Seconds interval, std::function<void()> action);

    std::optional<Seconds> nextDeadline() const;
    // Runs the earliest callback due at or before `now`; false when none is due. A repeating
    // timer is rescheduled one interval after its previous deadline, so it does not drift.
    bool runNext(Seconds now);
    bool empty() const { return entries_->empty(); }

private:
    using Key = std::pair<Seconds, std::uint64_t>;
    struct Entry {
        Seconds interval;
        std::uint64_t id;
        std::shared_ptr<std::function<void()>> action;
    };
    using Entries = std::map<Key, Entry>;

    std::shared_ptr<Entries> entries_;
    std::uint64_t nextSequence_ = 0;
    std::uint64_t nextID_ = 0;
};

}  // namespace quorvane
