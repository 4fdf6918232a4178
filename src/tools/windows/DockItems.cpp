#include "tools/windows/DockItems.hpp"

#include "platform/Workspace.hpp"

namespace quorvane {

namespace {

template <typename T>
std::optional<T> read(Accessibility& accessibility, const Element& element,
                      std::string_view attribute) {
    AccessibilityValue value;
    if (!element ||
        accessibility.copyAttribute(element, attribute, value) != Accessibility::kSuccess) {
        return std::nullopt;
    }
    if (const T* found = std::get_if<T>(&value)) {
        return *found;
    }
    return std::nullopt;
}

std::string_view trimmed(std::string_view url) {
    while (!url.empty() && url.back() == '/') {
        url.remove_suffix(1);
    }
    return url;
}

}  // namespace

std::optional<int> DockItems::dockPID() {
    for (const auto& app : workspace_.runningApplications()) {
        if (app.bundleID == kDockBundleID) {
            return app.pid;
        }
    }
    return std::nullopt;
}

Element DockItems::list() {
    const auto pid = dockPID();
    if (!pid) {
        return {};
    }
    const auto children =
        read<std::vector<Element>>(accessibility_, accessibility_.application(*pid), "AXChildren");
    for (const Element& child : children.value_or(std::vector<Element>{})) {
        if (read<std::string>(accessibility_, child, "AXRole") == "AXList") {
            return child;  // the Dock has one list
        }
    }
    return {};
}

std::optional<DockItems::Item> DockItems::item(const Element& icon) {
    const auto position = read<Point>(accessibility_, icon, "AXPosition");
    const auto size = read<Size>(accessibility_, icon, "AXSize");
    if (!position || !size) {
        return std::nullopt;
    }
    return Item{read<std::string>(accessibility_, icon, "AXTitle").value_or(""),
                read<std::string>(accessibility_, icon, "AXURL").value_or(""),
                Rect(*position, *size),
                read<std::string>(accessibility_, icon, "AXSubrole") == kApplicationItem};
}

std::vector<DockItems::Item> DockItems::items() {
    std::vector<Item> result;
    for (const Element& icon : read<std::vector<Element>>(accessibility_, list(), "AXChildren")
                                   .value_or(std::vector<Element>{})) {
        if (auto found = item(icon)) {
            result.push_back(std::move(*found));
        }
    }
    return result;
}

const DockItems::Item* DockItems::itemAt(Point point, const std::vector<Item>& items) {
    for (const auto& item : items) {
        if (item.frame.contains(point)) {
            return &item;
        }
    }
    return nullptr;
}

bool DockItems::overDock(Point point, const std::vector<WindowInfo>& windows, int dockPID) {
    for (const auto& window : windows) {
        if (window.bounds.contains(point)) {
            return window.pid == dockPID;
        }
    }
    return false;
}

bool DockItems::sameBundle(std::string_view a, std::string_view b) {
    return !trimmed(a).empty() && trimmed(a) == trimmed(b);
}

}  // namespace quorvane
