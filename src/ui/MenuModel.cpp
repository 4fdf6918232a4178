#include "ui/MenuModel.hpp"

#include "app/ToolRegistry.hpp"
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
