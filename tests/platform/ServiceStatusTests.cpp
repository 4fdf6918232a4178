#include "platform/ServiceStatus.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(ServiceStatus, KeepsTheSystemsValuesAndReadsUnknownOnesAsNotRegistered) {
    EXPECT_EQ(serviceStatus(1), ServiceStatus::enabled);
    EXPECT_EQ(serviceStatus(2), ServiceStatus::requiresApproval);
    EXPECT_EQ(serviceStatus(3), ServiceStatus::notFound);
    EXPECT_EQ(serviceStatus(4), ServiceStatus::notRegistered);
    EXPECT_EQ(serviceStatus(-1), ServiceStatus::notRegistered);
}

}  // namespace
}  // namespace quorvane
