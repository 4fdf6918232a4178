#pragma once

#include "platform/ChildProcesses.hpp"

namespace quorvane {

// Launches nothing. The command line uses it away from macOS: the programs Quorvane runs
// (killall to restart the Dock or Finder, hidutil) either do not exist there or, like killall,
// would signal unrelated processes that happen to share a name.
class NoChildProcesses : public ChildProcesses {
public:
    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>&) override {
        return ChildProcessStatus::couldNotLaunch(executablePath +
                                                  ": programs are not run on this system");
    }
};

}  // namespace quorvane
