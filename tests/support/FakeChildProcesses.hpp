#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/ChildProcesses.hpp"

namespace quorvane {

// Records every program run or started. A run answers the status set for its path, or exit 0;
// a started program goes on until the test finishes it.
struct FakeChildProcesses : ChildProcesses {
    struct Run {
        std::string executablePath;
        std::vector<std::string> arguments;
        friend bool operator==(const Run&, const Run&) = default;
    };
    struct Started {
        Run run;
        Completion finished;  // empty once finished or cancelled
        bool cancelled = false;
    };
    // Both kinds, in the order they were asked for.
    std::vector<Run> runs;
    std::map<std::string, ChildProcessStatus> results;
    std::vector<std::shared_ptr<Started>> started;

    ChildProcessStatus run(const std::string& executablePath,
                           const std::vector<std::string>& arguments) override {
        runs.push_back({executablePath, arguments});
        const auto found = results.find(executablePath);
        return found != results.end() ? found->second : ChildProcessStatus::exited(0);
    }

    std::unique_ptr<ChildProcessRun> start(const std::string& executablePath,
                                           const std::vector<std::string>& arguments,
                                           Completion finished) override {
        runs.push_back({executablePath, arguments});
        started.push_back(std::make_shared<Started>(
            Started{{executablePath, arguments}, std::move(finished), false}));
        return std::make_unique<Handle>(started.back());
    }

    // Ends the earliest started program still going, calling its completion with `status`;
    // false when none is going.
    bool finish(ChildProcessStatus status = ChildProcessStatus::exited(0)) {
        for (const auto& program : started) {
            if (program->finished) {
                const auto finished = std::exchange(program->finished, nullptr);
                finished(std::move(status));
                return true;
            }
        }
        return false;
    }
    std::size_t going() const {
        std::size_t count = 0;
        for (const auto& program : started) {
            count += program->finished ? 1 : 0;
        }
        return count;
    }

private:
    struct Handle : ChildProcessRun {
        explicit Handle(std::shared_ptr<Started> program) : program_(std::move(program)) {}
        ~Handle() override {
            if (program_->finished) {
                program_->finished = nullptr;
                program_->cancelled = true;
            }
        }
        std::shared_ptr<Started> program_;
    };
};

}  // namespace quorvane
