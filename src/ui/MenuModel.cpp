#include "ui/MenuModel.hpp"

#include <utility>

#include "app/ToolRegistry.hpp"
#include "ui/TileGrid.hpp"
#include "ui/ToolStatus.hpp"

namespace quorvane {

MenuModel::MenuModel(ToolRegistry& registry)
    : registry_(registry), registryChanges_(registry.subscribe([this] {
          watchTiles();
          publish();
      })) {
    watchTiles();
}

void MenuModel::watchTiles() {
    // A tile shows its tool's own state (keeping awake, muted), so the tools in the grid
    // are watched as well; the grid's contents only change through the registry.
    tileChanges_.clear();
    for (const auto& id : registry_.controlIDs()) {
        if (const Tool* tool = registry_.tool(id)) {
            tileChanges_.push_back(tool->subscribe([this] { publish(); }));
        }
    }
}

std::vector<MenuModel::Tile> MenuModel::tiles() const {
    std::vector<Tile> tiles;
    for (const auto& id : registry_.controlIDs()) {
        Tool* tool = registry_.tool(id);
        if (tool == nullptr || !tool->isAvailable()) {
            continue;
        }
        const auto control = tool->control();
        if (!control) {
            continue;
        }
        const bool enabled = registry_.enabledIDs().contains(id);
        tiles.push_back({id, control->title, control->systemImage,
                         enabled && (!control->isOn || control->isOn()),
                         ToolStatus::describe(registry_, *tool)});
    }
    return tiles;
}

void MenuModel::press(std::string_view toolID) {
    Tool* tool = registry_.tool(toolID);
    if (tool == nullptr || !tool->isAvailable()) {
        return;
    }
    if (!registry_.enabledIDs().contains(tool->id())) {
        registry_.setEnabled(true, *tool, true);
        return;
    }
    const auto control = tool->control();
    if (control && control->action) {
        control->action();
    } else {
        registry_.setEnabled(false, *tool, true);
    }
}

ViewNode MenuModel::view() {
    ViewNode grid = ViewNode::column(TileGrid::kSpacing);
    const auto shown = tiles();
    if (shown.empty()) {
        grid.children.push_back(ViewNode::secondaryLabel(kEmptyText, TileGrid::kWidth));
    }
    for (const auto& row : TileGrid::rows(shown)) {
        ViewNode line = ViewNode::row(TileGrid::kSpacing);
        for (const auto& tile : row) {
            ViewNode button =
                ViewNode::tile(tile.title, tile.systemImage, tile.isOn, TileGrid::kTileWidth,
                               TileGrid::kTileHeight, [this, id = tile.toolID] { press(id); });
            button.toolTip = tile.status;
            line.children.push_back(std::move(button));
        }
        grid.children.push_back(std::move(line));
    }
    // Borderless with their shortcuts, as in any app's own menu.
    const auto item = [](const char* title, const char* key, std::function<void()> action) {
        ViewNode button = ViewNode::button(title, std::move(action));
        button.isBordered = false;
        button.keyEquivalent = key;
        button.withCommand = true;
        return button;
    };
    return ViewNode::column(8, {std::move(grid), ViewNode::separator(TileGrid::kWidth),
                                item(kSettingsTitle, ",", [this] { openSettings(); }),
                                item(kQuitTitle, "q", [this] { quit(); })});
}

void MenuModel::openSettings() const {
    if (onOpenSettings) {
        onOpenSettings();
    }
}

void MenuModel::quit() const {
    if (onQuit) {
        onQuit();
    }
}

}  // namespace quorvane
