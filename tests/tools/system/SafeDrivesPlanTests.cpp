#include "tools/system/SafeDrivesPlan.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Names = std::vector<std::string>;

TEST(SafeDrivesPlan, RemountsExactlyTheVolumesItEjected) {
    SafeDrivesPlan plan;
    std::vector<SafeDrivesPlan::Volume> volumes = {
        {"disk3s1", "Macintosh HD", true, false, true},
        {"disk4s1", "Backup", false, false, true},
        {"disk5s1", "Camera", false, false, true},
        {"disk6s2", "Already Ejected", false, false, false},
        {"smb1", "Share", false, true, true},
    };
    EXPECT_EQ(plan.toUnmount(volumes), (Names{"disk4s1", "disk5s1"}));
    plan.unmounted("disk4s1", true);
    plan.unmounted("disk5s1", false);  // busy: it stays mounted and is not ours to mount
    plan.unmounted("disk4s1", true);
    EXPECT_EQ(plan.remembered(), (Names{"disk4s1"}));

    volumes[1].mounted = false;
    EXPECT_EQ(plan.toMount(volumes), (Names{"disk4s1"}));
    EXPECT_TRUE(plan.toMount(volumes).empty()) << "a second wake mounts nothing again";
}

TEST(SafeDrivesPlan, ADriveUnpluggedOrMountedWhileAsleepIsLeftAlone) {
    SafeDrivesPlan plan;
    plan.unmounted("disk4s1", true);
    plan.unmounted("disk5s1", true);
    const std::vector<SafeDrivesPlan::Volume> afterWake = {
        {"disk5s1", "Camera", false, false, true},  // the user mounted it already
    };
    EXPECT_TRUE(plan.toMount(afterWake).empty());
    EXPECT_TRUE(plan.remembered().empty());
}

}  // namespace
}  // namespace quorvane
