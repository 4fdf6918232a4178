#include "portable/SpawnedChildProcesses.hpp"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <map>
#include <thread>

#include "portable/SteadyScheduler.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

// The run loop returns once nothing is left to watch; this only bounds a test whose child was
// never ended.
constexpr Seconds kPatience{60};

// No child of this process is left, running or a zombie.
bool noChildLeft() {
    return ::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
}

TEST(SpawnedChildProcesses, ExitStatusLaunchFailureAndArgumentsAreToldApart) {
    SteadyScheduler scheduler;
    SpawnedChildProcesses processes{scheduler};
    EXPECT_TRUE(processes.run("/bin/sh", {"-c", "exit 0"}).succeeded());

    const auto failed = processes.run("/bin/sh", {"-c", "exit 3"});
    EXPECT_TRUE(failed.launched);
    EXPECT_EQ(failed.exitStatus, 3);

    const auto signalled = processes.run("/bin/sh", {"-c", "kill -TERM $$"});
    EXPECT_TRUE(signalled.launched);
    EXPECT_EQ(signalled.exitStatus, 128 + 15);

    const auto missing = processes.run("/nonexistent/killall", {"Dock"});
    EXPECT_FALSE(missing.launched);
    EXPECT_NE(missing.launchError.find("/nonexistent/killall"), std::string::npos);

    // Arguments arrive one by one, unsplit and unexpanded: no shell stands in between.
    TemporaryDirectory dir;
    const auto out = dir / "args";
    ASSERT_TRUE(processes
                    .run("/bin/sh", {"-c", "printf '%s|' \"$@\" > \"$0\"", out.string(),
                                     "two words", "$HOME", ""})
                    .succeeded());
    EXPECT_EQ(TemporaryDirectory::read(out), "two words|$HOME||");
}

TEST(SpawnedChildProcesses, OutputGoesToTheNullDevice) {
    // A child writing to a closed pipe or the test's terminal would show up in the test log;
    // with standard input at the null device, reading ends at once instead of waiting.
    SteadyScheduler scheduler;
    SpawnedChildProcesses processes{scheduler};
    const auto status = processes.run("/bin/sh", {"-c", "read line; echo noise; echo more >&2"});
    EXPECT_TRUE(status.launched);
    EXPECT_EQ(status.exitStatus, 0);
}

struct StartedChildProcessesTest : ::testing::Test {
    SteadyScheduler scheduler;
    SpawnedChildProcesses processes{scheduler};
    std::map<int, std::unique_ptr<ChildProcessRun>> runs;
    std::vector<std::string> answers;  // "exit N", or why it did not start

    // Each completion drops its own run, as the tools do.
    void start(int slot, const std::string& path, const std::vector<std::string>& arguments) {
        runs[slot] = processes.start(path, arguments, [this, slot](ChildProcessStatus status) {
            runs.erase(slot);
            answers.push_back(status.launched ? "exit " + std::to_string(status.exitStatus)
                                              : status.launchError);
        });
    }
};

TEST_F(StartedChildProcessesTest, EachRunAnswersOnceFromTheRunLoop) {
    start(0, "/bin/true", {});
    start(1, "/bin/false", {});
    start(2, "/nonexistent/osascript", {});
    EXPECT_TRUE(answers.empty()) << "never from inside start";
    scheduler.run(kPatience);
    std::sort(answers.begin(), answers.end());
    EXPECT_EQ(answers,
              (std::vector<std::string>{"/nonexistent/osascript: No such file or directory",
                                        "exit 0", "exit 1"}));
    EXPECT_TRUE(runs.empty());
    EXPECT_TRUE(noChildLeft());
}

TEST_F(StartedChildProcessesTest, ADroppedRunEndsItsChildAndNeverAnswers) {
    start(0, "/bin/sh", {"-c", "exec sleep 600"});
    start(1, "/bin/true", {});
    runs.clear();  // before either was looked at
    scheduler.run(kPatience);
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(noChildLeft()) << "every child ended and reaped, none a zombie";

    // One that ignores SIGTERM (an ignored signal stays so across exec) is killed after a while.
    TemporaryDirectory dir;
    const auto ready = dir / "ready";
    start(0, "/bin/sh", {"-c", "trap '' TERM; : > \"$0\"; exec sleep 600", ready.string()});
    // Dropped only once the trap is set, or SIGTERM would end the shell before it.
    for (int tries = 0; tries < 6000 && !std::filesystem::exists(ready); ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_TRUE(std::filesystem::exists(ready));
    runs.clear();
    scheduler.run(kPatience);
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(noChildLeft());
}

}  // namespace
}  // namespace quorvane
