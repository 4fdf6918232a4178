#include "portable/SpawnedChildProcesses.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "portable/RefusedChildProcessRun.hpp"

extern char** environ;

namespace quorvane {

namespace {

// posix_spawn_file_actions_t must be destroyed on every path once initialised.
class FileActions {
public:
    FileActions() { ok_ = ::posix_spawn_file_actions_init(&actions_) == 0; }
    ~FileActions() {
        if (ok_) {
            ::posix_spawn_file_actions_destroy(&actions_);
        }
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    bool silence() {
        for (const int fd : {0, 1, 2}) {
            const int flags = fd == 0 ? O_RDONLY : O_WRONLY;
            ok_ = ok_ &&
                  ::posix_spawn_file_actions_addopen(&actions_, fd, "/dev/null", flags, 0) == 0;
        }
        return ok_;
    }
    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
    bool ok_ = false;
};

// The child's pid, or why it could not be started.
struct Spawned {
    pid_t pid = 0;
    ChildProcessStatus failure;
};

Spawned spawn(const std::string& executablePath, const std::vector<std::string>& arguments) {
    FileActions actions;
    if (!actions.silence()) {
        return {0, ChildProcessStatus::couldNotLaunch("cannot prepare " + executablePath)};
    }
    std::vector<std::string> argumentCopies;
    argumentCopies.reserve(arguments.size() + 1);
    argumentCopies.push_back(executablePath);
    argumentCopies.insert(argumentCopies.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& argument : argumentCopies) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    pid_t pid = 0;
    const int error =
        ::posix_spawn(&pid, executablePath.c_str(), actions.get(), nullptr, argv.data(), environ);
    if (error != 0) {
        return {0,
                ChildProcessStatus::couldNotLaunch(executablePath + ": " + std::strerror(error))};
    }
    return {pid, {}};
}

ChildProcessStatus statusOf(int waitStatus) {
    if (WIFSIGNALED(waitStatus)) {
        return ChildProcessStatus::exited(128 + WTERMSIG(waitStatus));
    }
    return ChildProcessStatus::exited(WEXITSTATUS(waitStatus));
}

// A started child, watched from the run loop until it ends.
class SpawnedRun final : public ChildProcessRun {
public:
    SpawnedRun(Scheduler& scheduler, ChildReaper& reaper, pid_t pid,
               ChildProcesses::Completion finished)
        : reaper_(reaper),
          pid_(pid),
          finished_(std::move(finished)),
          poll_(scheduler.every(ChildReaper::kPollInterval, [this] { poll(); })) {}
    ~SpawnedRun() override {
        if (pid_ != 0) {
            reaper_.adopt(pid_);
        }
    }
    SpawnedRun(const SpawnedRun&) = delete;
    SpawnedRun& operator=(const SpawnedRun&) = delete;

private:
    void poll() {
        int waitStatus = 0;
        const pid_t result = ::waitpid(pid_, &waitStatus, WNOHANG);
        if (result == 0 || (result < 0 && errno == EINTR)) {
            return;
        }
        pid_ = 0;
        poll_.cancel();
        // Reaped elsewhere (a SIGCHLD handler set to ignore) when waitpid failed: it did run.
        const auto status = result < 0 ? ChildProcessStatus::exited(0) : statusOf(waitStatus);
        // The completion may destroy this run, so nothing of it is touched afterwards.
        const auto finished = std::move(finished_);
        finished(status);
    }

    ChildReaper& reaper_;
    pid_t pid_;
    ChildProcesses::Completion finished_;
    Timer poll_;
};

}  // namespace

SpawnedChildProcesses::SpawnedChildProcesses(Scheduler& scheduler)
    : scheduler_(scheduler), reaper_(scheduler) {}

ChildProcessStatus SpawnedChildProcesses::run(const std::string& executablePath,
                                              const std::vector<std::string>& arguments) {
    const Spawned spawned = spawn(executablePath, arguments);
    if (spawned.pid == 0) {
        return spawned.failure;
    }
    int waitStatus = 0;
    while (::waitpid(spawned.pid, &waitStatus, 0) < 0) {
        if (errno != EINTR) {
            // The child was reaped elsewhere (a SIGCHLD handler set to ignore): it did run.
            return ChildProcessStatus::exited(0);
        }
    }
    return statusOf(waitStatus);
}

std::unique_ptr<ChildProcessRun> SpawnedChildProcesses::start(
    const std::string& executablePath, const std::vector<std::string>& arguments,
    Completion finished) {
    Spawned spawned = spawn(executablePath, arguments);
    if (spawned.pid == 0) {
        return std::make_unique<RefusedChildProcessRun>(scheduler_, std::move(spawned.failure),
                                                        std::move(finished));
    }
    return std::make_unique<SpawnedRun>(scheduler_, reaper_, spawned.pid, std::move(finished));
}

}  // namespace quorvane
