#include "platform/HIDBatteryReading.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(HIDBatteryReading, NeedsAWholePercentageAndFallsBackToTheDeviceAddress) {
    EXPECT_EQ(HIDBatteryReading::read(
                  {{"BatteryPercent", 64}, {"Product", "Magic Mouse"}, {"SerialNumber", "C02X"}}),
              (HIDBatteryReading{"Magic Mouse", "C02X", 64}));
    EXPECT_EQ(HIDBatteryReading::read({{"BatteryPercent", 5},
                                       {"Product", "Magic Keyboard"},
                                       {"SerialNumber", ""},
                                       {"DeviceAddress", "aa-bb-cc"}}),
              (HIDBatteryReading{"Magic Keyboard", "aa-bb-cc", 5}));
    EXPECT_EQ(HIDBatteryReading::read({{"BatteryPercent", 5}}), (HIDBatteryReading{"", "", 5}));

    EXPECT_EQ(HIDBatteryReading::read({{"Product", "USB Keyboard"}}), std::nullopt);
    EXPECT_EQ(HIDBatteryReading::read({{"BatteryPercent", "64"}}), std::nullopt);
    EXPECT_EQ(HIDBatteryReading::read({{"BatteryPercent", 64.5}}), std::nullopt);
    EXPECT_EQ(HIDBatteryReading::read({{"BatteryPercent", 64.0}}), (HIDBatteryReading{"", "", 64}));
}

}  // namespace
}  // namespace quorvane
