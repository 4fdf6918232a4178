#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/ChildProcessRun.hpp"
#include "platform/ChildProcessStatus.hpp"

namespace quorvane {

// Runs another program ("/usr/bin/killall", "/usr/bin/osascript"). The program is named by its
// full path and gets exactly the given arguments (no shell, no search path); its standard
// input, output and error are the null device.
class ChildProcesses {
public:
    using Completion = std::function<void(ChildProcessStatus)>;

    virtual ~ChildProcesses() = default;

    // Runs the program and waits for it: only for programs that end in moments (killall,
    // hidutil, pmset), since the main thread, and with it every menu and hot key, waits too.
    virtual ChildProcessStatus run(const std::string& executablePath,
                                   const std::vector<std::string>& arguments) = 0;

    // Starts the program and returns at once; `finished` is called on the main thread, from
    // the run loop and never from inside start, exactly once: when the program ends, or with
    // the launch error when it could not be started. For programs that wait for the user or
    // may take long.
    [[nodiscard]] virtual std::unique_ptr<ChildProcessRun> start(
        const std::string& executablePath, const std::vector<std::string>& arguments,
        Completion finished) = 0;
};

}  // namespace quorvane
