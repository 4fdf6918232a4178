#pragma once

#include <functional>
#include <string>
#include <variant>

#include "base/Observable.hpp"
#include "ui/SettingsPage.hpp"

namespace quorvane {

class MenuModel;

// What a menu-bar panel's popover shows, as data the platform renders.
struct PanelContent {
    // Rows of the settings vocabulary, drawn like a settings page and refreshed whenever
    // `source` publishes (a tool's own panel: the mixer, the calendar).
    struct Page {
        std::function<SettingsPage()> make;
        const Observable* source = nullptr;
        double width = 320;
        // For pages whose rows come and go (the mixer): when `source` publishes and this
        // answers something new, the page is built again; otherwise its controls only re-read
        // their bindings, so a slider being dragged is never replaced. Empty: built once.
        std::function<std::string()> layoutKey = nullptr;
        // Told when the pointer enters (true) and leaves (false) the page. Empty: not tracked.
        std::function<void(bool)> pointerInside = nullptr;

        SettingsPage build() const { return make ? make() : SettingsPage{}; }
        std::string layout() const { return layoutKey ? layoutKey() : std::string(); }
        // Whether a page built when the layout was `built` must be built again.
        bool needsRebuild(const std::string& built) const {
            return layoutKey && layoutKey() != built;
        }
    };

    // Or Quorvane's own menu: the control grid, "Settings…" and "Quit Quorvane".
    std::variant<Page, MenuModel*> kind;
};

}  // namespace quorvane
