#pragma once

#include "platform/Accessibility.hpp"

namespace quorvane {

// The accessibility API of HIServices. Elements are AXUIElementRefs held by reference count.
class MacAccessibility final : public Accessibility {
public:
    Element systemWide() override;
    Element application(int pid) override;
    std::int32_t copyAttribute(const Element& element, std::string_view attribute,
                               AccessibilityValue& value) override;
    std::int32_t copyParameterizedAttribute(const Element& element, std::string_view attribute,
                                            const AccessibilityValue& parameter,
                                            AccessibilityValue& value) override;
    std::int32_t setAttribute(const Element& element, std::string_view attribute,
                              const AccessibilityValue& value) override;
    std::int32_t elementAtPosition(const Element& application, float x, float y,
                                   Element& element) override;
    std::int32_t pid(const Element& element, int& pid) override;
    std::int32_t performAction(const Element& element, std::string_view action) override;
    std::int32_t setMessagingTimeout(const Element& element, float seconds) override;
    std::unique_ptr<AccessibilityObserver> createObserver(int pid, ObserverCallback callback,
                                                          std::int32_t& status) override;
};

}  // namespace quorvane
