#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Rect.hpp"
#include "platform/Accessibility.hpp"
#include "platform/WindowInfo.hpp"

namespace quorvane {

class Workspace;

// The Dock's icons, read through its accessibility interface: the Dock application holds one
// list, whose items have a frame, a title and, for applications, the bundle's URL.
class DockItems {
public:
    static constexpr std::string_view kDockBundleID = "com.apple.dock";
    static constexpr std::string_view kApplicationItem = "AXApplicationDockItem";

    struct Item {
        std::string title;
        std::string url;  // "file:///Applications/Mail.app/"; empty for stacks and the Trash
        Rect frame;       // accessibility coordinates
        bool isApplication = false;
    };

    DockItems(Accessibility& accessibility, Workspace& workspace)
        : accessibility_(accessibility), workspace_(workspace) {}

    std::optional<int> dockPID();
    std::vector<Item> items();
    // The Dock's list of icons; a null element when the Dock is not running.
    Element list();
    // One icon of that list; nothing when it has no frame.
    std::optional<Item> item(const Element& icon);

    // The item under a point, if any.
    static const Item* itemAt(Point point, const std::vector<Item>& items);
    // Whether the frontmost window at a point (windows front to back) is the Dock's, so that a
    // click elsewhere costs no message to the Dock.
    static bool overDock(Point point, const std::vector<WindowInfo>& windows, int dockPID);
    // Bundle URLs compare equal with or without the closing slash.
    static bool sameBundle(std::string_view a, std::string_view b);

private:
    Accessibility& accessibility_;
    Workspace& workspace_;
};

}  // namespace quorvane
