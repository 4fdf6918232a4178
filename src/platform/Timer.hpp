#pragma once

#include "base/Subscription.hpp"

namespace quorvane {

// A scheduled callback. Destroying or cancelling the timer guarantees the callback never runs
// afterwards, so a callback may capture the object that owns the timer.
class Timer : public Subscription {
public:
    using Subscription::Subscription;
};

}  // namespace quorvane
