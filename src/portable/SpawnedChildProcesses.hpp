#pragma once

#include "platform/ChildProcesses.hpp"
#include "platform/Scheduler.hpp"
#include "portable/ChildReaper.hpp"

namespace quorvane {

// Child processes through posix_spawn and waitpid, on any POSIX system (macOS included). A
// started program is watched from the run loop (waitpid without waiting, every tenth of a
// second, as the reaper does), so the main thread goes on while it runs. Runs must not outlive this
// object.
class SpawnedChildProcesses : public ChildProcesses {
public:
    explicit SpawnedChildProcesses(Scheduler& scheduler);

    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>& arguments) override;
    std::unique_ptr<ChildProcessRun> start(const std::string& executablePath,
                                           const std::vector<std::string>& arguments,
                                           Completion finished) override;

private:
    Scheduler& scheduler_;
    ChildReaper reaper_;
};

}  // namespace quorvane
