#pragma once

#include <sys/types.h>

#include <cstddef>
#include <vector>

#include "platform/Scheduler.hpp"

namespace quorvane {

// Children whose run was dropped before they ended. Each is asked to end (SIGTERM) at once and
// made to (SIGKILL) if it is still there after a grace period; the run loop reaps them, so none
// is left a zombie and the main thread never waits for one.
class ChildReaper {
public:
    static constexpr Seconds kPollInterval{0.1};
    // Polls between SIGTERM and SIGKILL.
    static constexpr int kGracePolls = 20;

    explicit ChildReaper(Scheduler& scheduler);
    // Kills and reaps whatever is left; waits only for children that cannot outlive SIGKILL.
    ~ChildReaper();
    ChildReaper(const ChildReaper&) = delete;
    ChildReaper& operator=(const ChildReaper&) = delete;

    void adopt(pid_t pid);
    // Children signalled and not yet reaped.
    std::size_t size() const { return children_.size(); }

private:
    struct Child {
        pid_t pid;
        int polls;
    };
    void poll();

    Scheduler& scheduler_;
    std::vector<Child> children_;
    Timer timer_;
};

}  // namespace quorvane
