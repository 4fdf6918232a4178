#pragma once

#include <functional>
#include <string>

#include "base/Subscription.hpp"

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
    // Text beside the image (the button's title); empty for none.
    virtual void setTitle(const std::string& title) = 0;
    // Points, or MenuBar::kVariableLength to fit the content.
    virtual void setLength(double length) = 0;
    // The key under which the system keeps where the user dragged the item with ⌘.
    virtual void setAutosaveName(const std::string& name) = 0;
    // Whether any of the item is on screen now: false while the user has removed it, while the
    // menu bar is hidden (a full-screen app) and while other items or the notch cover it.
    virtual bool isOnScreen() const = 0;
    // Told on the main thread whenever isOnScreen may have changed.
    [[nodiscard]] virtual Subscription observeOnScreen(std::function<void()> handler) = 0;
};

}  // namespace quorvane
