#include "input/FocusedText.hpp"

#include <string>
#include <variant>

namespace quorvane {

bool isEditableElement(Accessibility& accessibility, const Element& element) {
    AccessibilityValue value;
    if (accessibility.copyAttribute(element, "AXRole", value) == Accessibility::kSuccess) {
        if (const auto* role = std::get_if<std::string>(&value)) {
            if (*role == "AXTextField" || *role == "AXTextArea" || *role == "AXComboBox") {
                return true;
            }
        }
    }
    AccessibilityValue ancestor;
    return accessibility.copyAttribute(element, "AXEditableAncestor", ancestor) ==
               Accessibility::kSuccess &&
           std::holds_alternative<Element>(ancestor) && std::get<Element>(ancestor);
}

bool isTextFocused(Accessibility& accessibility) {
    AccessibilityValue focused;
    if (accessibility.copyAttribute(accessibility.systemWide(), "AXFocusedUIElement", focused) !=
            Accessibility::kSuccess ||
        !std::holds_alternative<Element>(focused)) {
        return false;
    }
    const Element element = std::get<Element>(focused);
    return element && isEditableElement(accessibility, element);
}

}  // namespace quorvane
