#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ChildProcesses.hpp"

namespace quorvane {

// Runs a program as an administrator through the system's own authorisation prompt: osascript
// runs "do shell script … with administrator privileges", which shows the standard password
// window with Quorvane's reason. Whoever calls this says so on its page before it asks, and
// shows that it waits while the window is up. The completion comes when the user has answered;
// a cancelled prompt ends osascript with status 1. Dropping the run closes the window.
struct AdministratorCommand {
    static constexpr const char* kOsascript = "/usr/bin/osascript";
    // What a page says while the window is up.
    static constexpr const char* kWaitingNote = "Waiting for the administrator password…";

    // osascript's arguments: the script, with the program and each argument quoted for the
    // shell and the whole command and the reason quoted as AppleScript text.
    static std::vector<std::string> osascriptArguments(const std::string& executablePath,
                                                       const std::vector<std::string>& arguments,
                                                       const std::string& reason);
    [[nodiscard]] static std::unique_ptr<ChildProcessRun> start(
        ChildProcesses& processes, const std::string& executablePath,
        const std::vector<std::string>& arguments, const std::string& reason,
        ChildProcesses::Completion finished);
};

}  // namespace quorvane
