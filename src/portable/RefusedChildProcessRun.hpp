#pragma once

#include <utility>

#include "platform/ChildProcesses.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

// A program that never started: the launch error is reported from the run loop, as a program
// that ended would be, so the owner of the run sees a single path.
class RefusedChildProcessRun final : public ChildProcessRun {
public:
    RefusedChildProcessRun(Scheduler& scheduler, ChildProcessStatus status,
                           ChildProcesses::Completion finished)
        : posted_(scheduler.post([status = std::move(status), finished = std::move(finished)] {
              finished(status);
          })) {}

private:
    Timer posted_;
};

}  // namespace quorvane
