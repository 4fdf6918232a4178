#include "tools/system/ChargeLimitPolicy.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace quorvane {
namespace {

TEST(ChargeLimitPolicy, StopsAtTheLimitAndResumesOnlyBelowTheBand) {
    ChargeLimitPolicy policy{80, 5};
    // Charging up through the band, to the limit, then discharging back down through it.
    const std::vector<int> charge = {70, 76, 79, 80, 81, 80, 78, 75, 74, 76, 79, 80};
    const std::vector<bool> wanted = {true,  true,  true, false, false, false,
                                      false, false, true, true,  true,  false};
    for (std::size_t i = 0; i < charge.size(); ++i) {
        EXPECT_EQ(policy.shouldCharge(charge[i]), wanted[i]) << "at " << charge[i] << "%";
    }
}

TEST(ChargeLimitPolicy, UnknownChargeAndFullLimitLeaveChargingToTheSystem) {
    ChargeLimitPolicy policy{80, 5};
    EXPECT_FALSE(policy.shouldCharge(85));
    EXPECT_TRUE(policy.shouldCharge(std::nullopt));
    EXPECT_FALSE(policy.shouldCharge(80)) << "a known charge at the limit stops it again";
    ChargeLimitPolicy full{100, 5};
    EXPECT_TRUE(full.shouldCharge(100));
    // Limits and bands outside what the page offers are brought inside.
    EXPECT_EQ(ChargeLimitPolicy(10, 0).limit(), ChargeLimitPolicy::kLowestLimit);
    EXPECT_EQ(ChargeLimitPolicy(10, 0).band(), 1);
    EXPECT_EQ(ChargeLimitPolicy(150, 90).limit(), 100);
}

}  // namespace
}  // namespace quorvane
