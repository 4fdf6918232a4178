#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "platform/WindowInfo.hpp"

namespace quorvane {

// What a click on the green button does to a window: the first click fills the display's
// usable area and remembers where the window was; a second click on the filled window puts it
// back. A window is known by its process and title, since the accessibility interface offers
// no lasting identity for another application's window.
class ZoomToggle {
public:
    // Windows remembered at once; the oldest is forgotten beyond this.
    static constexpr std::size_t kLimit = 64;

    // The traffic-light buttons sit in this corner of a window, toolbars included.
    static constexpr double kButtonCornerWidth = 90;
    static constexpr double kButtonCornerHeight = 60;
    // Whether a click at the point (top-left coordinates) lands in the button corner of the
    // ordinary window in front there (windows listed front to back). Only then is the window's
    // application asked where its button is, so other clicks cost no message to another app.
    static bool inButtonCorner(Point point, const std::vector<WindowInfo>& windows);

    // The window's new frame; nothing when there is nothing to change.
    std::optional<Rect> click(int pid, const std::string& title, const Rect& current,
                              const Rect& visibleArea);
    void forget(int pid);
    std::size_t remembered() const { return entries_.size(); }

private:
    struct Entry {
        int pid;
        std::string title;
        Rect filled;
        Rect original;
    };
    std::vector<Entry> entries_;
};

}  // namespace quorvane
