#include "tools/windows/AccessibleWindows.hpp"

#include <cmath>

namespace quorvane {

namespace {

// Controls sit a few levels below their window; a button in a toolbar in a split view is about
// as deep as it gets before the window's own attribute would have answered.
constexpr int kMaxParentSteps = 16;

}  // namespace

Element AccessibleWindows::elementAttribute(const Element& element, std::string_view attribute) {
    if (!element) {
        return nullptr;
    }
    AccessibilityValue value;
    if (accessibility_.copyAttribute(element, attribute, value) != Accessibility::kSuccess) {
        return nullptr;
    }
    const Element* found = std::get_if<Element>(&value);
    return found ? *found : nullptr;
}

bool AccessibleWindows::isWindow(const Element& element) {
    AccessibilityValue role;
    if (accessibility_.copyAttribute(element, "AXRole", role) != Accessibility::kSuccess) {
        return false;
    }
    const auto* text = std::get_if<std::string>(&role);
    return text && *text == "AXWindow";
}

Element AccessibleWindows::focusedWindow() {
    return elementAttribute(elementAttribute(accessibility_.systemWide(), "AXFocusedApplication"),
                            "AXFocusedWindow");
}

Element AccessibleWindows::focusedWindow(int pid) {
    return elementAttribute(accessibility_.application(pid), "AXFocusedWindow");
}

Element AccessibleWindows::windowAt(Point point) {
    Element hit;
    if (accessibility_.elementAtPosition(accessibility_.systemWide(), static_cast<float>(point.x),
                                         static_cast<float>(point.y),
                                         hit) != Accessibility::kSuccess ||
        !hit) {
        return nullptr;
    }
    if (isWindow(hit)) {
        return hit;
    }
    // Most elements name their window directly; the rest are found by walking up.
    if (Element window = elementAttribute(hit, "AXWindow")) {
        return window;
    }
    Element current = hit;
    for (int step = 0; step < kMaxParentSteps; ++step) {
        current = elementAttribute(current, "AXParent");
        if (!current) {
            return nullptr;
        }
        if (isWindow(current)) {
            return current;
        }
    }
    return nullptr;
}

std::optional<Rect> AccessibleWindows::frame(const Element& window) {
    if (!window) {
        return std::nullopt;
    }
    AccessibilityValue position;
    AccessibilityValue size;
    if (accessibility_.copyAttribute(window, "AXPosition", position) != Accessibility::kSuccess ||
        accessibility_.copyAttribute(window, "AXSize", size) != Accessibility::kSuccess) {
        return std::nullopt;
    }
    const auto* origin = std::get_if<Point>(&position);
    const auto* extent = std::get_if<Size>(&size);
    // Some windows answer NaN or an empty size for a moment (while opening, or mid-animation).
    // Such a frame is unknown, so no NaN or infinity ever reaches a later move or resize.
    if (!origin || !extent || !std::isfinite(origin->x) || !std::isfinite(origin->y) ||
        !std::isfinite(extent->width) || !std::isfinite(extent->height) || !(extent->width > 0) ||
        !(extent->height > 0)) {
        return std::nullopt;
    }
    return Rect(*origin, *extent);
}

std::int32_t AccessibleWindows::setPosition(const Element& window, Point position) {
    return accessibility_.setAttribute(window, "AXPosition", position);
}

std::int32_t AccessibleWindows::setSize(const Element& window, Size size) {
    return accessibility_.setAttribute(window, "AXSize", size);
}

std::int32_t AccessibleWindows::raise(const Element& window) {
    return accessibility_.performAction(window, "AXRaise");
}

std::optional<int> AccessibleWindows::pid(const Element& element) {
    int value = 0;
    if (!element || accessibility_.pid(element, value) != Accessibility::kSuccess) {
        return std::nullopt;
    }
    return value;
}

std::int32_t AccessibleWindows::setFrame(const Element& window, const Rect& frame) {
    std::int32_t status = setPosition(window, frame.origin);
    if (status == Accessibility::kSuccess) {
        status = setSize(window, frame.size);
    }
    if (status == Accessibility::kSuccess) {
        const auto now = this->frame(window);
        if (now && now->origin != frame.origin) {
            status = setPosition(window, frame.origin);
        }
    }
    return status;
}

std::optional<std::vector<Element>> AccessibleWindows::windowsIfKnown(int pid) {
    AccessibilityValue value;
    if (accessibility_.copyAttribute(accessibility_.application(pid), "AXWindows", value) !=
        Accessibility::kSuccess) {
        return std::nullopt;
    }
    const auto* list = std::get_if<std::vector<Element>>(&value);
    return list ? std::optional(*list) : std::nullopt;
}

std::string AccessibleWindows::title(const Element& window) {
    AccessibilityValue value;
    if (!window ||
        accessibility_.copyAttribute(window, "AXTitle", value) != Accessibility::kSuccess) {
        return {};
    }
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

bool AccessibleWindows::isMinimized(const Element& window) {
    AccessibilityValue value;
    if (!window ||
        accessibility_.copyAttribute(window, "AXMinimized", value) != Accessibility::kSuccess) {
        return false;
    }
    const auto* flag = std::get_if<bool>(&value);
    return flag && *flag;
}

namespace {

std::optional<std::string> subrole(Accessibility& accessibility, const Element& window) {
    AccessibilityValue value;
    if (!window ||
        accessibility.copyAttribute(window, "AXSubrole", value) != Accessibility::kSuccess) {
        return std::nullopt;
    }
    const auto* text = std::get_if<std::string>(&value);
    return text ? std::optional(*text) : std::nullopt;
}

}  // namespace

bool AccessibleWindows::isStandard(const Element& window) {
    return subrole(accessibility_, window) == "AXStandardWindow";
}

bool AccessibleWindows::isFloating(const Element& window) {
    return subrole(accessibility_, window) == "AXFloatingWindow";
}

std::string AccessibleWindows::failure(const std::string& what, std::int32_t status) {
    return what + " (AXError " + std::to_string(status) + ")";
}

}  // namespace quorvane
