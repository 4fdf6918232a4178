#include "platform/ChargingHelperPeer.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(ChargingHelperPeer, NamesTheTeamOrRefusesEveryone) {
    EXPECT_EQ(chargingHelperPeerRequirement("AB12CD34EF"),
              "identifier \"com.quorvane.app\" and anchor apple generic and certificate "
              "leaf[subject.OU] = \"AB12CD34EF\"");
    EXPECT_EQ(chargingHelperPeerRequirement(""), std::nullopt);
    // Anything that could close the quoted string and add a clause of its own.
    EXPECT_EQ(chargingHelperPeerRequirement("AB\" or anchor apple"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
