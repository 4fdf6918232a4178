#pragma once

#include <functional>
#include <string>

namespace quorvane {

// One item in the system menu bar (NSStatusItem). Destroying it removes it from the menu bar.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    // The system has always given items a button so far, but the property is optional, and
    // an item without one cannot be clicked or anchor a popover.
    virtual bool hasButton() const = 0;
    // A template image from an SF Symbols name, so it follows the menu bar's appearance; the
    // description is what VoiceOver reads.
    virtual void setImage(const std::string& systemImage,
                          const std::string& accessibilityDescription) = 0;
    // What a click on the button does.
    virtual void setAction(std::function<void()> action) = 0;
};

}  // namespace quorvane
