#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "base/Subscription.hpp"
#include "platform/Popover.hpp"
#include "platform/StatusItem.hpp"

namespace quorvane {

struct PanelContent;

// The menu bar and what a panel under it needs from the window system: status items,
// popovers, a monitor of clicks in other applications, and activation.
class MenuBar {
public:
    // NSVariableStatusItemLength: the item is as wide as its image.
    static constexpr double kVariableLength = -1.0;
    enum class PopoverBehavior { applicationDefined = 0, transient = 1, semitransient = 2 };

    virtual ~MenuBar() = default;

    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem(double length) = 0;
    [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(const PanelContent& content,
                                                               PopoverBehavior behavior) = 0;
    // A global monitor (NSEvent): it sees copies of events posted to other applications only,
    // and its handler runs on the main thread. Ending the subscription removes the monitor.
    [[nodiscard]] virtual Subscription addGlobalMonitor(std::uint64_t eventMask,
                                                        std::function<void()> handler) = 0;
    // Makes Quorvane the active application, so a popover or window takes keyboard focus.
    virtual void activateApplication() = 0;
};

}  // namespace quorvane
