#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Observable.hpp"
#include "base/Subscription.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

class ToolRegistry;

// Quorvane's own menu: a grid of tiles for the tools the user put there, in the order added,
// then "Settings…" and "Quit Quorvane". It publishes whenever a tile could look different.
class MenuModel : public Observable {
public:
    static constexpr const char* kSettingsTitle = "Settings…";
    static constexpr const char* kQuitTitle = "Quit Quorvane";
    static constexpr const char* kEmptyText =
        "Turn on “Show in Menu” on a tool's settings page to put its button here.";

    struct Tile {
        std::string toolID;
        std::string title;
        std::string systemImage;
        bool isOn = false;
        // "Off", "On", or what the tool still waits for.
        std::string status;
    };

    explicit MenuModel(ToolRegistry& registry);

    std::vector<Tile> tiles() const;
    // A tile switches an off tool on; on a tool that is on, it works the tool's control, or
    // switches the tool off when the control has no action of its own.
    void press(std::string_view toolID);

    // The tiles in rows, then "Settings…" and "Quit Quorvane"; the buttons act on this model.
    ViewNode view();

    std::function<void()> onOpenSettings;
    std::function<void()> onQuit;
    void openSettings() const;
    void quit() const;

private:
    void watchTiles();

    ToolRegistry& registry_;
    Subscription registryChanges_;
    std::vector<Subscription> tileChanges_;
};

}  // namespace quorvane
