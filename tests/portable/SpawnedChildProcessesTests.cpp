#include "portable/SpawnedChildProcesses.hpp"

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

TEST(SpawnedChildProcesses, ExitStatusLaunchFailureAndArgumentsAreToldApart) {
    SpawnedChildProcesses processes;
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
    SpawnedChildProcesses processes;
    const auto status = processes.run("/bin/sh", {"-c", "read line; echo noise; echo more >&2"});
    EXPECT_TRUE(status.launched);
    EXPECT_EQ(status.exitStatus, 0);
}

}  // namespace
}  // namespace quorvane
