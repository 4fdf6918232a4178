#include "platform/DdcServiceChoice.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

DisplayControl::Display display(std::uint32_t id, bool builtIn) {
    DisplayControl::Display listed;
    listed.id = id;
    listed.builtIn = builtIn;
    return listed;
}

TEST(DdcServiceChoice, OnlyTheOneExternalDisplayWithTheOneServiceIsPaired) {
    const std::vector<DisplayControl::Display> laptopAndMonitor = {display(1, true),
                                                                   display(2, false)};
    EXPECT_EQ(ddcServiceIndex(2, laptopAndMonitor, 1), 0u);
    EXPECT_EQ(ddcServiceIndex(1, laptopAndMonitor, 1), std::nullopt);  // built in
    EXPECT_EQ(ddcServiceIndex(3, laptopAndMonitor, 1), std::nullopt);  // not connected
    EXPECT_EQ(ddcServiceIndex(2, laptopAndMonitor, 0), std::nullopt);
    EXPECT_EQ(ddcServiceIndex(2, laptopAndMonitor, 2), std::nullopt);

    // Two monitors: registry order says nothing about which is which.
    const std::vector<DisplayControl::Display> twoMonitors = {display(2, false), display(3, false)};
    EXPECT_EQ(ddcServiceIndex(2, twoMonitors, 1), std::nullopt);
    EXPECT_EQ(ddcServiceIndex(2, twoMonitors, 2), std::nullopt);
}

}  // namespace
}  // namespace quorvane
