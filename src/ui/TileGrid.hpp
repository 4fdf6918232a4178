#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvane {

// The menu's control grid: tiles of one size, a fixed number to a row, in the order given, the
// last row holding what is left over. The grid is as wide as a full row, so the menu keeps its
// width however few tiles there are.
struct TileGrid {
    static constexpr std::size_t kColumns = 3;
    static constexpr double kTileWidth = 88;
    static constexpr double kTileHeight = 64;
    static constexpr double kSpacing = 8;
    static constexpr double kWidth =
        static_cast<double>(kColumns) * kTileWidth + static_cast<double>(kColumns - 1) * kSpacing;

    template <typename Tile>
    static std::vector<std::vector<Tile>> rows(const std::vector<Tile>& tiles) {
        std::vector<std::vector<Tile>> result;
        for (std::size_t start = 0; start < tiles.size(); start += kColumns) {
            const std::size_t end = std::min(start + kColumns, tiles.size());
            result.emplace_back(tiles.begin() + static_cast<std::ptrdiff_t>(start),
                                tiles.begin() + static_cast<std::ptrdiff_t>(end));
        }
        return result;
    }
};

}  // namespace quorvane
