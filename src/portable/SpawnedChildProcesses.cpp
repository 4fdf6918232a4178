#include "portable/SpawnedChildProcesses.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>

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

}  // namespace

ChildProcessStatus SpawnedChildProcesses::run(const std::string& executablePath,
                                              const std::vector<std::string>& arguments) {
    FileActions actions;
    if (!actions.silence()) {
        return ChildProcessStatus::couldNotLaunch("cannot prepare " + executablePath);
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
        return ChildProcessStatus::couldNotLaunch(executablePath + ": " + std::strerror(error));
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR) {
            // The child was reaped elsewhere (a SIGCHLD handler set to ignore): it did run.
            return ChildProcessStatus::exited(0);
        }
    }
    if (WIFSIGNALED(status)) {
        return ChildProcessStatus::exited(128 + WTERMSIG(status));
    }
    return ChildProcessStatus::exited(WEXITSTATUS(status));
}

}  // namespace quorvane
