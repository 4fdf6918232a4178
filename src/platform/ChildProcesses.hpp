#pragma once

#include <string>
#include <vector>

#include "platform/ChildProcessStatus.hpp"

namespace quorvane {

// Runs another program ("/usr/bin/killall", "/usr/bin/hidutil") and waits for it. The program
// is named by its full path and gets exactly the given arguments (no shell, no search path);
// its standard input, output and error are the null device.
class ChildProcesses {
public:
    virtual ~ChildProcesses() = default;

    virtual ChildProcessStatus run(const std::string& executablePath,
                                   const std::vector<std::string>& arguments) = 0;
};

}  // namespace quorvane
