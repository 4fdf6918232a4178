#pragma once

#include <memory>

#include "platform/Popover.hpp"
#include "platform/StatusItem.hpp"

namespace quorvane {

struct PanelContent;

// The menu bar and what a panel under it needs from the window system: status items,
// popovers and activation.
class MenuBar {
public:
    // NSVariableStatusItemLength: the item is as wide as its image.
    static constexpr double kVariableLength = -1.0;
    enum class PopoverBehavior { applicationDefined = 0, transient = 1, semitransient = 2 };

    virtual ~MenuBar() = default;

    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem(double length) = 0;
    [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(const PanelContent& content,
                                                               PopoverBehavior behavior) = 0;
    // Makes Quorvane the active application, so a popover or window takes keyboard focus.
    virtual void activateApplication() = 0;
};

}  // namespace quorvane
