#include "base/Rect.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(Rect, IntegralRoundsTheOriginDownAndTheFarEdgesUp) {
    EXPECT_EQ(Rect(0.5, 25.2, 719.4, 849.9).integral(), Rect(0, 25, 720, 851));
    EXPECT_EQ(Rect(-10.5, -0.25, 10, 0.5).integral(), Rect(-11, -1, 11, 2));
    EXPECT_EQ(Rect(3, 4, 5, 6).integral(), Rect(3, 4, 5, 6)) << "already integral";
    EXPECT_EQ(Rect(10, 10, -4.5, 2).integral(), Rect(5, 10, 5, 2)) << "negative widths extend left";
    EXPECT_EQ(Rect(1.5, 2.5, 0, 7).integral(), Rect(1, 2, 0, 0)) << "empty stays empty";
}

TEST(Rect, ContainmentAndIntersectionUseHalfOpenEdges) {
    const Rect screen(0, 0, 1440, 900);
    EXPECT_TRUE(screen.contains({0, 0}));
    EXPECT_FALSE(screen.contains({1440, 10})) << "the far edge belongs to the next screen";
    EXPECT_FALSE(screen.intersects(Rect(1440, 0, 1920, 1080)));
    EXPECT_EQ(screen.intersection(Rect(1000, -100, 1000, 300)), Rect(1000, 0, 440, 200));
    EXPECT_EQ(Rect(100, 100, -50, -50).standardized(), Rect(50, 50, 50, 50));
}

}  // namespace
}  // namespace quorvane
