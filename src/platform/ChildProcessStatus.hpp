#pragma once

#include <string>

namespace quorvane {

// How a child process ended. "Could not launch" (no such executable, no permission) is kept
// apart from "ran and failed", because callers treat them differently: a missing tool is the
// system's fault, a non-zero status is the tool's answer.
struct ChildProcessStatus {
    bool launched = false;
    // The exit status when the child exited; 128 plus the signal number when a signal ended it,
    // as shells report it. Meaningless unless launched.
    int exitStatus = 0;
    // Why it could not be launched; empty when it was.
    std::string launchError;

    bool succeeded() const { return launched && exitStatus == 0; }

    static ChildProcessStatus exited(int status) { return {true, status, {}}; }
    static ChildProcessStatus couldNotLaunch(std::string why) { return {false, 0, std::move(why)}; }
};

}  // namespace quorvane
