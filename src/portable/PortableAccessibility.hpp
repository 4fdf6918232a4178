#pragma once

#include "platform/Accessibility.hpp"

namespace quorvane {

// No other applications to reach outside macOS: every call answers that the API is disabled,
// as it does on a Mac without the permission.
class PortableAccessibility : public Accessibility {
public:
    Element systemWide() override { return nullptr; }
    Element application(int) override { return nullptr; }
    std::int32_t copyAttribute(const Element&, std::string_view, AccessibilityValue&) override {
        return kAPIDisabled;
    }
    std::int32_t setAttribute(const Element&, std::string_view,
                              const AccessibilityValue&) override {
        return kAPIDisabled;
    }
    std::int32_t elementAtPosition(const Element&, float, float, Element&) override {
        return kAPIDisabled;
    }
    std::int32_t pid(const Element&, int&) override { return kAPIDisabled; }
    std::int32_t performAction(const Element&, std::string_view) override { return kAPIDisabled; }
    std::int32_t setMessagingTimeout(const Element&, float) override { return kAPIDisabled; }
    std::unique_ptr<AccessibilityObserver> createObserver(int, ObserverCallback,
                                                          std::int32_t& status) override {
        status = kAPIDisabled;
        return nullptr;
    }
};

}  // namespace quorvane
