#pragma once

#include <functional>
#include <string>

namespace quorvane {

// A tool's tile in the menu's control grid.
struct ToolControl {
    std::string title;
    std::string systemImage;
    // Whether the tile shows as on (for example "keeping awake"); empty: a plain action tile.
    std::function<bool()> isOn;
    std::function<void()> action;
};

}  // namespace quorvane
