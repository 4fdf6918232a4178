#pragma once

#include "app/ToolIdentity.hpp"

namespace quorvane {

// A row of the catalog: a tool's identity and the few traits that set it apart from the usual.
struct ToolDescriptor {
    ToolIdentity identity;
    // A pure settings page (startup items, default apps…): always "needs setup" and opens its
    // page when switched on.
    bool settingsOnly = false;
    // Its refresh does nothing instead of stopping it.
    bool refreshDoesNothing = false;
    // It offers a tile for the menu's control grid.
    bool hasControl = false;
    // One of the tools that only flip other programs' settings and share one implementation.
    bool flipsSystemSettings = false;
};

}  // namespace quorvane
