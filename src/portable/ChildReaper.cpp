#include "portable/ChildReaper.hpp"

#include <sys/wait.h>

#include <cerrno>
#include <csignal>

namespace quorvane {

namespace {

// True once the child is reaped, or is no child of ours any more.
bool reaped(pid_t pid, int options) {
    pid_t result = 0;
    do {
        result = ::waitpid(pid, nullptr, options);
    } while (result < 0 && errno == EINTR);
    return result != 0;
}

}  // namespace

ChildReaper::ChildReaper(Scheduler& scheduler) : scheduler_(scheduler) {}

ChildReaper::~ChildReaper() {
    for (const Child& child : children_) {
        ::kill(child.pid, SIGKILL);
        reaped(child.pid, 0);
    }
}

void ChildReaper::adopt(pid_t pid) {
    ::kill(pid, SIGTERM);
    if (reaped(pid, WNOHANG)) {
        return;
    }
    children_.push_back({pid, 0});
    if (!timer_) {
        timer_ = scheduler_.every(kPollInterval, [this] { poll(); });
    }
}

void ChildReaper::poll() {
    std::erase_if(children_, [](Child& child) {
        if (reaped(child.pid, WNOHANG)) {
            return true;
        }
        if (++child.polls == kGracePolls) {
            ::kill(child.pid, SIGKILL);
        }
        return false;
    });
    if (children_.empty()) {
        timer_.cancel();
    }
}

}  // namespace quorvane
