#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/BatteryLimitTool.hpp"

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using Status = ChargingHelper::Status;

struct BatteryLimitToolTest : ::testing::Test {
    FakePlatform fakes;
    ToolDescriptor descriptor = catalogDescriptor("battery-limit");
    std::string page(BatteryLimitTool& tool) {
        return SettingsTextRenderer::render(tool.settingsPage());
    }
};

TEST_F(BatteryLimitToolTest, StopsAtTheLimitAndResumesOnlyBelowTheLimitMinusTheBand) {
    fakes.powerSources.battery(70, true);
    BatteryLimitTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_TRUE(fakes.chargingHelper.requests.empty()) << "below the limit the system charges";
    for (const int percent : {78, 79, 80}) {
        fakes.powerSources.battery(percent, true);
    }
    EXPECT_EQ(fakes.chargingHelper.requests, (std::vector<bool>{false}));
    EXPECT_TRUE(tool.isHolding());
    EXPECT_NE(page(tool).find("Charging is paused at the limit."), std::string::npos);
    EXPECT_EQ(fakes.preferences.boolean(BatteryLimitTool::kHoldingKey), true);

    // Discharging through the band asks nothing, nor does the periodic re-check.
    for (const int percent : {79, 77, 75}) {
        fakes.powerSources.battery(percent, false);
    }
    fakes.scheduler.advance(2min);
    EXPECT_EQ(fakes.chargingHelper.requests, (std::vector<bool>{false}));
    fakes.powerSources.battery(74, false);
    EXPECT_EQ(fakes.chargingHelper.requests, (std::vector<bool>{false, true}));
    EXPECT_FALSE(tool.isHolding());
    EXPECT_FALSE(fakes.preferences.boolean(BatteryLimitTool::kHoldingKey));

    // A new limit takes effect at once and is kept.
    fakes.powerSources.battery(76, true);
    tool.setLimit(75);
    EXPECT_EQ(fakes.chargingHelper.requests.back(), false);
    EXPECT_EQ(fakes.preferences.integer(BatteryLimitTool::kLimitKey), 75);
    EXPECT_FALSE(tool.lastError());
}

TEST_F(BatteryLimitToolTest, ChargingIsSwitchedBackOnWhenTurnedOffAndAfterACrash) {
    fakes.powerSources.battery(85, false);
    {
        BatteryLimitTool tool{descriptor, fakes.platform()};
        tool.start();
        EXPECT_FALSE(fakes.chargingHelper.charging);
        tool.stop();
        EXPECT_TRUE(fakes.chargingHelper.charging);
        tool.stop();
        EXPECT_EQ(fakes.chargingHelper.requests, (std::vector<bool>{false, true}));
    }

    // A run that ended while charging was held leaves the marker; tidy switches it back on.
    fakes.chargingHelper.charging = false;
    fakes.preferences.set(BatteryLimitTool::kHoldingKey, true);
    BatteryLimitTool next{descriptor, fakes.platform()};
    next.tidy();
    EXPECT_TRUE(fakes.chargingHelper.charging);
    EXPECT_FALSE(fakes.preferences.boolean(BatteryLimitTool::kHoldingKey));
}

TEST_F(BatteryLimitToolTest, WithoutAnApprovedHelperItDoesNothingAndSaysWhatIsMissing) {
    fakes.powerSources.battery(90, true);
    fakes.chargingHelper.registration = Status::notRegistered;
    BatteryLimitTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_TRUE(fakes.chargingHelper.requests.empty());
    ASSERT_TRUE(tool.lastError());
    EXPECT_NE(tool.lastError()->find("needs Quorvane's charging helper"), std::string::npos);
    EXPECT_NE(page(tool).find("Install Helper…"), std::string::npos);

    tool.installHelper();
    EXPECT_EQ(fakes.chargingHelper.registrations, 1);
    EXPECT_NE(tool.lastError()->find("System Settings › General › Login Items"), std::string::npos);

    // Approval in System Settings is noticed by the periodic re-check.
    fakes.chargingHelper.registration = Status::enabled;
    fakes.scheduler.advance(60s);
    EXPECT_EQ(fakes.chargingHelper.requests, (std::vector<bool>{false}));
    EXPECT_FALSE(tool.lastError());

    // A helper that cannot switch charging is shown, and asked again next time.
    fakes.chargingHelper.answer = ChargingHelper::kRefused;
    fakes.powerSources.battery(60, false);
    EXPECT_EQ(*tool.lastError(),
              "Letting the battery charge failed: the helper could not switch charging on this "
              "Mac.");
    fakes.chargingHelper.answer = 0;
    fakes.powerSources.battery(60, false);
    EXPECT_FALSE(tool.lastError());
    EXPECT_FALSE(tool.isHolding());
}

TEST_F(BatteryLimitToolTest, AMacWithoutABatteryIsLeftToCharge) {
    BatteryLimitTool tool{descriptor, fakes.platform()};
    tool.start();
    EXPECT_FALSE(tool.charge());
    EXPECT_TRUE(fakes.chargingHelper.requests.empty());
    EXPECT_NE(page(tool).find("no built-in battery"), std::string::npos);
}

}  // namespace
}  // namespace quorvane
