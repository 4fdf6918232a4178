#pragma once

#include "platform/ChildProcesses.hpp"

namespace quorvane {

// Child processes through posix_spawn and waitpid, on any POSIX system (macOS included). The
// caller waits: the programs run here (killall, hidutil) finish in milliseconds.
class SpawnedChildProcesses : public ChildProcesses {
public:
    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>& arguments) override;
};

}  // namespace quorvane
