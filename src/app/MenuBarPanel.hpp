#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/Subscription.hpp"
#include "platform/EventMonitors.hpp"
#include "platform/MenuBar.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

struct PanelContent;

// A menu-bar item of its own with a popover under it, which closes when the user clicks
// anywhere else. A tool creates one in start and destroys it in stop, so the item is in the
// menu bar exactly while the tool runs. Main thread only.
class MenuBarPanel {
public:
    // Left, right and other mouse-down (event types 1, 3 and 25).
    static constexpr std::uint64_t kOutsideClickMask = 0x200000A;
    // The system closes a transient popover on the mouse-down of a click on its own item, and
    // the item's action follows on the mouse-up: an action this soon after such a close
    // belongs to that click, which meant "close", not "open again".
    static constexpr Seconds kReopenGuard{0.5};

    MenuBarPanel(MenuBar& menuBar, EventMonitors& eventMonitors, Scheduler& scheduler,
                 const PanelContent& content, double length = MenuBar::kVariableLength);
    ~MenuBarPanel();
    MenuBarPanel(const MenuBarPanel&) = delete;
    MenuBarPanel& operator=(const MenuBarPanel&) = delete;

    // The owner sets the item's image here.
    StatusItem& statusItem() { return *statusItem_; }
    // Just before the popover shows, and after it has closed: once each per opening.
    std::function<void()> onOpen;
    std::function<void()> onClose;

    // A click on the item: opens the popover, or closes it when it is shown.
    void toggle();
    void close();
    bool isShown() const { return popover_->isShown(); }

private:
    void didClose();

    MenuBar& menuBar_;
    EventMonitors& eventMonitors_;
    Scheduler& scheduler_;
    // When the system last closed the popover by itself; closes asked for here do not count.
    std::optional<Seconds> closedBySystemAt_;
    bool closingOnRequest_ = false;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<Popover> popover_;
    Subscription closeToken_;
    Subscription outsideClickMonitor_;
};

}  // namespace quorvane
