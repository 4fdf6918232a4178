#include "platform/PowerSourceDescription.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(PowerSourceDescription, ReadsTheKeysItKnowsAndLeavesTheRestUnset) {
    const auto battery = PowerSourceDescription::read({
        {"Name", "InternalBattery-0"},
        {"Type", PowerSourceDescription::kInternalBattery},
        {"Power Source State", PowerSourceDescription::kACPower},
        {"Is Present", true},
        {"Is Charging", false},
        {"Current Capacity", 87},
        {"Max Capacity", 100},
    });
    EXPECT_EQ(battery.name, "InternalBattery-0");
    EXPECT_EQ(battery.type, "InternalBattery");
    EXPECT_EQ(battery.powerSourceState, "AC Power");
    EXPECT_TRUE(battery.isPresent);
    EXPECT_EQ(battery.isCharging, false);
    EXPECT_EQ(battery.currentCapacity, 87);
    EXPECT_EQ(battery.maxCapacity, 100);

    // A UPS that reports little, one value of the wrong kind.
    const auto ups = PowerSourceDescription::read({{"Type", "UPS"}, {"Current Capacity", "full"}});
    EXPECT_EQ(ups.type, "UPS");
    EXPECT_EQ(ups.name, "");
    EXPECT_FALSE(ups.isPresent);
    EXPECT_EQ(ups.isCharging, std::nullopt);
    EXPECT_EQ(ups.currentCapacity, std::nullopt);
}

}  // namespace
}  // namespace quorvane
