#pragma once

#include "platform/ChildProcesses.hpp"
#include "portable/RefusedChildProcessRun.hpp"

namespace quorvane {

// Launches nothing. The command line uses it away from macOS: the programs Quorvane runs
// (killall to restart the Dock or Finder, hidutil) either do not exist there or, like killall,
// would signal unrelated processes that happen to share a name.
class NoChildProcesses : public ChildProcesses {
public:
    explicit NoChildProcesses(Scheduler& scheduler) : scheduler_(scheduler) {}

    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>&) override {
        return refusal(executablePath);
    }

    std::unique_ptr<ChildProcessRun> start(const std::string& executablePath,
                                           const std::vector<std::string>&,
                                           Completion finished) override {
        return std::make_unique<RefusedChildProcessRun>(scheduler_, refusal(executablePath),
                                                        std::move(finished));
    }

private:
    static ChildProcessStatus refusal(const std::string& executablePath) {
        return ChildProcessStatus::couldNotLaunch(executablePath +
                                                  ": programs are not run on this system");
    }

    Scheduler& scheduler_;
};

}  // namespace quorvane
