#include "ui/TileGrid.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Rows = std::vector<std::vector<int>>;

TEST(TileGridTest, TilesFillRowsInOrderAndTheLastRowTakesTheRest) {
    EXPECT_EQ(TileGrid::rows(std::vector<int>{}), Rows{});
    EXPECT_EQ(TileGrid::rows(std::vector<int>{1, 2}), (Rows{{1, 2}}));
    EXPECT_EQ(TileGrid::rows(std::vector<int>{1, 2, 3}), (Rows{{1, 2, 3}}))
        << "a full row opens no empty one after it";
    EXPECT_EQ(TileGrid::rows(std::vector<int>{1, 2, 3, 4, 5, 6, 7}),
              (Rows{{1, 2, 3}, {4, 5, 6}, {7}}));
}

}  // namespace
}  // namespace quorvane
