#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/DeviceBatteriesTool.hpp"
#include "tools/system/DeviceBatteryList.hpp"

namespace quorvane {
namespace {

using namespace std::chrono_literals;

TEST(DeviceBatteryList, OneLinePerDeviceEmptiestFirst) {
    const std::vector<HIDBatteryReading> readings = {
        {"Magic Keyboard", "", 80},
        {"Magic Mouse", "AA-01", 45},
        {"Magic Mouse", "", 45},  // the same mouse under a second registry entry
        {"Magic Mouse", "BB-02", 12},
        {"Magic Keyboard", "", 80},
        {"", "", 50},
        {"Odd Pad", "", 255},
    };
    const auto devices = DeviceBatteryList::devices(readings);
    ASSERT_EQ(devices.size(), 3u);
    EXPECT_EQ(devices[0], (HIDBatteryReading{"Magic Mouse", "BB-02", 12}));
    EXPECT_EQ(devices[1], (HIDBatteryReading{"Magic Mouse", "AA-01", 45}));
    EXPECT_EQ(devices[2].product, "Magic Keyboard");
    EXPECT_EQ(DeviceBatteryList::line(devices[0], 20), "Magic Mouse: 12% (low)");
    EXPECT_EQ(DeviceBatteryList::line(devices[2], 20), "Magic Keyboard: 80%");
    EXPECT_EQ(DeviceBatteryList::tileTitle(devices), "Magic Mouse 12%");
    EXPECT_EQ(DeviceBatteryList::tileTitle({}), "Device Batteries");
}

TEST(DeviceBatteriesTool, ReadsWhileOnAndShowsTheLevelsInTheTileAndPage) {
    FakePlatform fakes;
    const auto descriptor = catalogDescriptor("device-batteries");
    fakes.hidBatteries.devices = {{"Magic Trackpad", "", 64}};
    DeviceBatteriesTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_EQ(tool.control()->title, "Magic Trackpad 64%");
    fakes.hidBatteries.devices[0].batteryPercent = 15;
    fakes.scheduler.advance(300s);
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("Magic Trackpad: 15% (low)"),
              std::string::npos);
    tool.setLowLevel(10);
    EXPECT_EQ(fakes.preferences.integer(DeviceBatteriesTool::kLowLevelKey), 10);
    EXPECT_EQ(DeviceBatteryList::line(tool.devices()[0], tool.lowLevel()), "Magic Trackpad: 15%");
    tool.stop();
    const int reads = fakes.hidBatteries.reads;
    fakes.scheduler.advance(600s);
    tool.control()->action();
    EXPECT_EQ(fakes.hidBatteries.reads, reads) << "nothing is read while off";
}

}  // namespace
}  // namespace quorvane
