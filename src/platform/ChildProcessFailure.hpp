#pragma once

#include <string>

#include "platform/ChildProcessStatus.hpp"

namespace quorvane {

// Why a program did not do its job, for a tool's lastError: "pmset ended with status 1", or
// why it could not be started at all.
inline std::string childProcessFailure(const std::string& program,
                                       const ChildProcessStatus& status) {
    return status.launched ? program + " ended with status " + std::to_string(status.exitStatus)
                           : status.launchError;
}

}  // namespace quorvane
