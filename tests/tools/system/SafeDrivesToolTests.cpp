#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/SafeDrivesTool.hpp"

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

struct SafeDrivesToolTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("safe-drives");
    SafeDrivesTool tool{descriptor, fakes.platform()};

    void SetUp() override {
        fakes.diskArbitration.attach("disk3s1", "Macintosh HD", true);
        fakes.diskArbitration.attach("disk4s1", "Backup");
        fakes.diskArbitration.attach("disk5s1", "Camera");
        fakes.diskArbitration.attach("disk6s1", "Spare");
        fakes.diskArbitration.disks["disk6s1"].volumePath.clear();  // ejected by the user
        fakes.diskArbitration.attach("smb-1", "Share", false, true);
        tool.start();
    }
    void sleepAndWake() {
        fakes.power.send(PowerManagement::kSystemWillSleep);
        fakes.diskArbitration.answer();
        fakes.power.send(PowerManagement::kSystemHasPoweredOn);
        fakes.diskArbitration.answer();
    }
};

TEST_F(SafeDrivesToolTest, SleepWaitsForTheEjectsAndWakeRemountsExactlyThoseVolumes) {
    fakes.diskArbitration.dissent["disk5s1"] = static_cast<int>(0xF8DA000C);  // busy
    fakes.power.send(PowerManagement::kCanSystemSleep);
    EXPECT_EQ(fakes.power.acknowledgements, 1);
    fakes.power.send(PowerManagement::kSystemWillSleep);
    EXPECT_EQ(fakes.diskArbitration.requests, (Names{"unmount disk4s1", "unmount disk5s1"}));
    EXPECT_EQ(fakes.power.acknowledgements, 1) << "sleep waits for the answers";
    fakes.diskArbitration.answer();
    EXPECT_EQ(fakes.power.acknowledgements, 2);
    EXPECT_EQ(tool.ejectedNames(), (Names{"Backup"}));
    ASSERT_TRUE(tool.lastError());
    EXPECT_EQ(*tool.lastError(),
              "“Camera” could not be ejected before sleep: Disk Arbitration status 0xF8DA000C");

    fakes.power.send(PowerManagement::kSystemHasPoweredOn);
    fakes.diskArbitration.answer();
    EXPECT_EQ(fakes.diskArbitration.requests,
              (Names{"unmount disk4s1", "unmount disk5s1", "mount disk4s1"}));
    EXPECT_FALSE(fakes.diskArbitration.disks["disk4s1"].volumePath.empty());
    EXPECT_TRUE(fakes.diskArbitration.disks["disk6s1"].volumePath.empty())
        << "the drive the user ejected stays ejected";
    EXPECT_TRUE(tool.ejectedNames().empty());
    EXPECT_EQ(fakes.power.acknowledgements, 2) << "wake needs no answer";
}

TEST_F(SafeDrivesToolTest, ADriveUnpluggedWhileAsleepOrNotRemountedIsLeftAlone) {
    fakes.power.send(PowerManagement::kSystemWillSleep);
    fakes.diskArbitration.answer();
    fakes.diskArbitration.disks.erase("disk5s1");
    fakes.power.send(PowerManagement::kSystemHasPoweredOn);
    EXPECT_EQ(fakes.diskArbitration.requests.back(), "mount disk4s1");
    fakes.diskArbitration.answer();

    tool.setRemounts(false);
    fakes.diskArbitration.requests.clear();
    sleepAndWake();
    EXPECT_EQ(fakes.diskArbitration.requests, (Names{"unmount disk4s1"}));
    EXPECT_TRUE(tool.ejectedNames().empty()) << "nothing is remembered for a later wake";
    EXPECT_EQ(fakes.preferences.boolean(SafeDrivesTool::kRemountKey), false);
}

TEST_F(SafeDrivesToolTest, ADriveThatDoesNotAnswerDoesNotHoldSleepUp) {
    fakes.power.send(PowerManagement::kSystemWillSleep);
    fakes.scheduler.advance(19s);
    EXPECT_EQ(fakes.power.acknowledgements, 0);
    fakes.scheduler.advance(1s);
    EXPECT_EQ(fakes.power.acknowledgements, 1);
    ASSERT_TRUE(tool.lastError());
    EXPECT_NE(tool.lastError()->find("within 20 seconds"), std::string::npos);
    // The late answers still count: what went is mounted again on wake.
    fakes.diskArbitration.answer();
    EXPECT_EQ(fakes.power.acknowledgements, 1);
    EXPECT_EQ(tool.ejectedNames(), (Names{"Backup", "Camera"}));
}

TEST_F(SafeDrivesToolTest, TurningOffAnswersSleepAndPutsEjectedDrivesBack) {
    fakes.power.send(PowerManagement::kSystemWillSleep);
    fakes.diskArbitration.dissent["disk5s1"] = 1;
    fakes.diskArbitration.answer();
    fakes.power.send(PowerManagement::kSystemWillSleep);  // the next sleep, before any wake
    tool.stop();
    EXPECT_EQ(fakes.power.acknowledgements, 2);
    EXPECT_EQ(fakes.power.systemPower.size(), 0u);
    EXPECT_EQ(fakes.diskArbitration.requests.back(), "mount disk4s1");
    fakes.diskArbitration.answer();
    EXPECT_FALSE(fakes.diskArbitration.disks["disk4s1"].volumePath.empty());
    fakes.scheduler.advance(1min);
    EXPECT_EQ(fakes.power.acknowledgements, 2) << "no deadline fires after stop";
}

}  // namespace
}  // namespace quorvane
