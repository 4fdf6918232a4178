#include "portable/SpawnedChildProcesses.hpp"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <optional>
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
    std::vector<ChildProcessStatus> answers;

    // Started with a completion that drops the run, as its owners do.
    std::unique_ptr<ChildProcessRun> run;
    void start(const std::string& path, const std::vector<std::string>& arguments) {
        run = processes.start(path, arguments, [this](ChildProcessStatus status) {
            run.reset();
            answers.push_back(std::move(status));
        });
    }
};

TEST_F(StartedChildProcessesTest, EachRunAnswersOnceFromTheRunLoop) {
    start("/bin/true", {});
    std::unique_ptr<ChildProcessRun> failing = processes.start(
        "/bin/false", {}, [this](ChildProcessStatus status) { answers.push_back(status); });
    std::unique_ptr<ChildProcessRun> missing =
        processes.start("/nonexistent/osascript", {},
                        [this](ChildProcessStatus status) { answers.push_back(status); });
    EXPECT_TRUE(answers.empty()) << "never from inside start";
    scheduler.run(kPatience);
    ASSERT_EQ(answers.size(), 3u);
    const auto launched = [this](int exitStatus) {
        return std::count_if(answers.begin(), answers.end(), [&](const auto& status) {
            return status.launched && status.exitStatus == exitStatus;
        });
    };
    EXPECT_EQ(launched(0), 1);
    EXPECT_EQ(launched(1), 1);
    EXPECT_EQ(std::count_if(answers.begin(), answers.end(),
                            [](const auto& status) {
                                return status.launchError.find("/nonexistent/osascript: ") == 0;
                            }),
              1);
    EXPECT_FALSE(run);
    EXPECT_TRUE(noChildLeft());
}

TEST_F(StartedChildProcessesTest, ADroppedRunEndsItsChildAndNeverAnswers) {
    start("/bin/sh", {"-c", "exec sleep 600"});
    start("/bin/true", {});  // replaces the first run before either was looked at
    std::unique_ptr<ChildProcessRun> dropped = processes.start(
        "/bin/true", {}, [this](ChildProcessStatus status) { answers.push_back(status); });
    dropped.reset();
    scheduler.run(kPatience);
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_TRUE(answers.front().succeeded());
    EXPECT_TRUE(noChildLeft()) << "every child reaped, none a zombie";
}

TEST_F(StartedChildProcessesTest, AChildThatIgnoresTerminationIsKilledAfterAWhile) {
    TemporaryDirectory dir;
    const auto ready = dir / "ready";
    // An ignored signal stays ignored across exec, so sleep itself ignores SIGTERM.
    start("/bin/sh", {"-c", "trap '' TERM; : > \"$0\"; exec sleep 600", ready.string()});
    // Dropped only once the trap is set, or SIGTERM would end the shell before it.
    for (int tries = 0; tries < 6000 && !std::filesystem::exists(ready); ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_TRUE(std::filesystem::exists(ready));
    run.reset();
    scheduler.run(kPatience);
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(noChildLeft());
}

}  // namespace
}  // namespace quorvane
