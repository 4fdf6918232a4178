#include "app/MenuBarPanel.hpp"

#include <utility>

namespace quorvane {

MenuBarPanel::MenuBarPanel(MenuBar& menuBar, EventMonitors& eventMonitors, Scheduler& scheduler,
                           const PanelContent& content, double length)
    : menuBar_(menuBar),
      eventMonitors_(eventMonitors),
      scheduler_(scheduler),
      statusItem_(menuBar.makeStatusItem(length)),
      popover_(menuBar.makePopover(content, MenuBar::PopoverBehavior::transient)) {
    if (statusItem_->hasButton()) {
        statusItem_->setAction([this] { toggle(); });
    }
    closeToken_ = popover_->observeDidClose([this] { didClose(); });
}

MenuBarPanel::~MenuBarPanel() {
    // The observer goes before the popover is closed, so a did-close notice sent while closing
    // cannot reach an owner that is being torn down: nothing is called back from here.
    closeToken_.cancel();
    outsideClickMonitor_.cancel();
    close();
    popover_.reset();
    statusItem_.reset();
}

void MenuBarPanel::toggle() {
    if (popover_->isShown()) {
        close();
        return;
    }
    const auto closedAt = std::exchange(closedBySystemAt_, std::nullopt);
    if (closedAt && scheduler_.now() - *closedAt < kReopenGuard) {
        return;
    }
    if (!statusItem_->hasButton()) {
        return;
    }
    if (onOpen) {
        onOpen();
    }
    // An accessory app is not active on its own; without this the popover gets no keys.
    menuBar_.activateApplication();
    popover_->show(*statusItem_);
    // A global monitor sees clicks in other applications only, which is what "elsewhere" is.
    outsideClickMonitor_ =
        eventMonitors_.addGlobal(kOutsideClickMask, [this](const Event&) { close(); });
}

void MenuBarPanel::close() {
    if (popover_->isShown()) {
        closingOnRequest_ = true;
        popover_->performClose();
        closingOnRequest_ = false;
    }
}

void MenuBarPanel::didClose() {
    if (!closingOnRequest_) {
        closedBySystemAt_ = scheduler_.now();
    }
    // Every way of closing ends here, so the monitor lives exactly while the popover shows.
    outsideClickMonitor_.cancel();
    if (onClose) {
        onClose();
    }
}

}  // namespace quorvane
