#pragma once

#include <functional>

#include "platform/Scheduler.hpp"

namespace quorvane {

// Time and the main run loop. Timers run in the run loop's common modes, so they keep firing
// while a menu is tracked or a window is live-resized. Main thread only.
class MacScheduler final : public Scheduler {
public:
    Seconds now() const override;
    double date() const override;

    [[nodiscard]] Timer after(Seconds delay, std::function<void()> action) override;
    [[nodiscard]] Timer every(Seconds interval, std::function<void()> action) override;
    [[nodiscard]] Timer post(std::function<void()> action) override;
};

}  // namespace quorvane
