#pragma once

#include "platform/Accessibility.hpp"

namespace quorvane {

// Whether the element takes typed text: a text field, text area or combo box, or something
// inside an editable ancestor (a web page's text box).
bool isEditableElement(Accessibility& accessibility, const Element& element);
// Whether the focused element of the app in front takes typed text.
bool isTextFocused(Accessibility& accessibility);

}  // namespace quorvane
