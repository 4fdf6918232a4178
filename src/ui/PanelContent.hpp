#pragma once

#include <functional>
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
    };

    // Or Quorvane's own menu: the control grid, "Settings…" and "Quit Quorvane".
    std::variant<Page, MenuModel*> kind;
};

}  // namespace quorvane
