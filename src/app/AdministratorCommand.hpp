#pragma once

#include <string>
#include <vector>

#include "platform/ChildProcessStatus.hpp"

namespace quorvane {

class ChildProcesses;

// Runs a program as an administrator through the system's own authorisation prompt: osascript
// runs "do shell script … with administrator privileges", which shows the standard password
// window with Quorvane's reason. Whoever calls this says so on its page before it asks. The
// call returns when the user has answered; a cancelled prompt ends osascript with status 1.
struct AdministratorCommand {
    static constexpr const char* kOsascript = "/usr/bin/osascript";

    // osascript's arguments: the script, with the program and each argument quoted for the
    // shell and the whole command and the reason quoted as AppleScript text.
    static std::vector<std::string> osascriptArguments(const std::string& executablePath,
                                                       const std::vector<std::string>& arguments,
                                                       const std::string& reason);
    static ChildProcessStatus run(ChildProcesses& processes, const std::string& executablePath,
                                  const std::vector<std::string>& arguments,
                                  const std::string& reason);
};

}  // namespace quorvane
