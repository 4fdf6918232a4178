#pragma once

#include <functional>

#include "base/Subscription.hpp"

namespace quorvane {

class StatusItem;

// A popover (NSPopover) whose content the platform built from a PanelContent.
class Popover {
public:
    virtual ~Popover() = default;

    virtual bool isShown() const = 0;
    // Shows it relative to the item button's bounds, in the button, below the menu bar.
    virtual void show(StatusItem& anchor) = 0;
    // Closes it if shown (performClose:); the did-close notice follows.
    virtual void performClose() = 0;
    // The popover's did-close notification, delivered on the main thread; every way the
    // popover closes (performClose, Escape, a click elsewhere in the app) sends it.
    [[nodiscard]] virtual Subscription observeDidClose(std::function<void()> handler) = 0;
};

}  // namespace quorvane
