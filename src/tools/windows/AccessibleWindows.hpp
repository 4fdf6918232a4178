#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "platform/Accessibility.hpp"

namespace quorvane {

// Other applications' windows as the window tools see them, through the accessibility
// interface: finding one, reading its frame, moving it. Frames are in accessibility
// coordinates (origin at the top left of the primary display, y downward).
class AccessibleWindows {
public:
    explicit AccessibleWindows(Accessibility& accessibility) : accessibility_(accessibility) {}

    // The focused window of the focused application, system-wide.
    Element focusedWindow();
    // The focused window of one application.
    Element focusedWindow(int pid);
    // The window that holds whatever is under the point.
    Element windowAt(Point point);
    std::optional<Rect> frame(const Element& window);
    // AXError statuses.
    std::int32_t setPosition(const Element& window, Point position);
    std::int32_t setSize(const Element& window, Size size);
    std::int32_t raise(const Element& window);
    std::optional<int> pid(const Element& element);
    // Position, then size, then the position again if the size moved it: an app may keep a
    // window on its old display until it fits the new one.
    std::int32_t setFrame(const Element& window, const Rect& frame);

    // An application's windows ("AXWindows"), minimized ones included; nothing when it did
    // not answer, and so an empty list then.
    std::optional<std::vector<Element>> windowsIfKnown(int pid);
    std::vector<Element> windows(int pid) {
        return windowsIfKnown(pid).value_or(std::vector<Element>{});
    }
    std::string title(const Element& window);
    bool isMinimized(const Element& window);
    // A document window ("AXStandardWindow"), not a sheet, dialog, palette or pop-up.
    bool isStandard(const Element& window);
    // A palette or inspector ("AXFloatingWindow").
    bool isFloating(const Element& window);
    // An element an attribute names, such as a window's "AXZoomButton"; nullptr when none.
    Element child(const Element& element, std::string_view attribute) {
        return elementAttribute(element, attribute);
    }

    // "Couldn't move the window (AXError -25204)": how a failed change reads on a settings page.
    static std::string failure(const std::string& what, std::int32_t status);

private:
    Element elementAttribute(const Element& element, std::string_view attribute);
    bool isWindow(const Element& element);

    Accessibility& accessibility_;
};

}  // namespace quorvane
