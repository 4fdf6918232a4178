#pragma once

#include <cstdint>
#include <string_view>

#include "platform/AccessibilityElement.hpp"

namespace quorvane {

// An AXObserver for one process. Destroying it takes its source off the run loop and releases
// it, after which its callback never runs again.
class AccessibilityObserver {
public:
    virtual ~AccessibilityObserver() = default;

    // AXObserverAddNotification; an AXError status. Registrations end with the observer.
    virtual std::int32_t addNotification(const Element& element, std::string_view name) = 0;
    // Adds the observer's run-loop source to the main run loop in the common modes.
    virtual void schedule() = 0;
};

}  // namespace quorvane
