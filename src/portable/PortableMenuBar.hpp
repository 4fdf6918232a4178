#pragma once

#include "platform/MenuBar.hpp"

namespace quorvane {

// The command line has no menu bar: items take no space and popovers never show, so a tool's
// start and stop still pair up their creation and removal.
class PortableMenuBar : public MenuBar {
public:
    std::unique_ptr<StatusItem> makeStatusItem(double length) override;
    std::unique_ptr<Popover> makePopover(const PanelContent& content,
                                         PopoverBehavior behavior) override;
    void activateApplication() override {}
};

}  // namespace quorvane
