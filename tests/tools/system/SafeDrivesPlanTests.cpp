#include "tools/system/SafeDrivesPlan.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Names = std::vector<std::string>;

// Which volumes sleep ejects, and which are busy or the user's own, is checked end to end with
// the tool; here only what the plan remembers across a wake.
TEST(SafeDrivesPlan, ADriveUnpluggedOrMountedWhileAsleepIsLeftAloneAndNoneIsMountedTwice) {
    SafeDrivesPlan plan;
    plan.unmounted("disk4s1", true);
    plan.unmounted("disk4s1", true);
    plan.unmounted("disk5s1", true);
    plan.unmounted("disk6s1", true);
    plan.unmounted("disk7s1", false);  // busy: it stays mounted and is not ours to mount
    EXPECT_EQ(plan.remembered(), (Names{"disk4s1", "disk5s1", "disk6s1"}));
    const std::vector<SafeDrivesPlan::Volume> afterWake = {
        {"disk5s1", "Camera", false, false, true},  // the user mounted it already
        {"disk6s1", "Backup", false, false, false},
        {"disk7s1", "Busy", false, false, false},
    };
    EXPECT_EQ(plan.toMount(afterWake), (Names{"disk6s1"}));
    EXPECT_TRUE(plan.toMount(afterWake).empty()) << "a second wake mounts nothing again";
    EXPECT_TRUE(plan.remembered().empty());
}

}  // namespace
}  // namespace quorvane
