#pragma once

#include <memory>

namespace quorvane {

// An accessibility element of some application (a window, a button, the application itself).
// Opaque: only the Accessibility port that made it looks inside. Copies share one reference.
class AccessibilityElement {
public:
    virtual ~AccessibilityElement() = default;
};

using Element = std::shared_ptr<const AccessibilityElement>;

}  // namespace quorvane
