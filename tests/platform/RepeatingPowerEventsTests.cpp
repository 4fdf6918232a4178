#include "platform/RepeatingPowerEvents.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(RepeatingPowerEvents, ReadsEachEventOnlyWhenItIsWhole) {
    const PreferenceValue::Dictionary wakeWeekdays{
        {"eventtype", "wakepoweron"}, {"time", 480}, {"weekdays", 31}};
    const PreferenceValue::Dictionary sleepWithoutDays{{"eventtype", "sleep"}, {"time", 1380}};
    const auto events = RepeatingPowerEvents::read({
        {"RepeatingPowerOn", wakeWeekdays},
        {"RepeatingPowerOff", sleepWithoutDays},
    });
    EXPECT_EQ(events.powerOn, (RepeatingPowerEvents::Event{"wakepoweron", 480, 31}));
    EXPECT_EQ(events.powerOff, std::nullopt);

    EXPECT_EQ(RepeatingPowerEvents::read({{"RepeatingPowerOn", "wake"}}), RepeatingPowerEvents{});
    EXPECT_EQ(RepeatingPowerEvents::read(std::optional(PreferenceValue("no schedule"))),
              RepeatingPowerEvents{});
    EXPECT_EQ(RepeatingPowerEvents::read(std::optional<PreferenceValue>()), RepeatingPowerEvents{});
}

}  // namespace
}  // namespace quorvane
