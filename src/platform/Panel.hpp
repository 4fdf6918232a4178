#pragma once

#include <functional>

#include "base/Rect.hpp"
#include "platform/Scheduler.hpp"
#include "ui/HUDCard.hpp"

namespace quorvane {

// A floating panel that never takes focus or clicks, shows on every Space and over full-screen
// applications, and stays on top at the status window level.
class Panel {
public:
    virtual ~Panel() = default;

    // Replaces what the panel shows.
    virtual void setContent(const HUDCard& card) = 0;
    // The size the content wants.
    virtual Size fittingSize() const = 0;
    // Screen coordinates; the panel redraws at once.
    virtual void setFrame(const Rect& frame) = 0;
    // Animates the panel's opacity over `duration` (zero: at once), then calls `completion`,
    // if any. The completion never runs after the panel is destroyed.
    virtual void fadeTo(double alpha, Seconds duration, std::function<void()> completion) = 0;
    // Brings the panel to the front whichever application is active.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
};

}  // namespace quorvane
