#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ChildProcesses.hpp"

namespace quorvane {

// Records every program run; each answers the status set for its path, or exit 0.
struct FakeChildProcesses : ChildProcesses {
    struct Run {
        std::string executablePath;
        std::vector<std::string> arguments;
        friend bool operator==(const Run&, const Run&) = default;
    };
    std::vector<Run> runs;
    std::map<std::string, ChildProcessStatus> results;

    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>& arguments) override {
        runs.push_back({executablePath, arguments});
        const auto found = results.find(executablePath);
        return found != results.end() ? found->second : ChildProcessStatus::exited(0);
    }
};

}  // namespace quorvane
