#pragma once

#include "platform/MenuBar.hpp"

namespace quorvane {

// NSStatusBar's items, NSPopover, NSEvent's global monitors and NSApplication's activation.
// Main thread only.
class MacMenuBar final : public MenuBar {
public:
    std::unique_ptr<StatusItem> makeStatusItem(double length) override;
    std::unique_ptr<Popover> makePopover(const PanelContent& content,
                                         PopoverBehavior behavior) override;
    Subscription addGlobalMonitor(std::uint64_t eventMask, std::function<void()> handler) override;
    void activateApplication() override;
};

}  // namespace quorvane
