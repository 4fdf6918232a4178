#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/AccessibilityElement.hpp"
#include "platform/AccessibilityObserver.hpp"
#include "platform/AccessibilityValue.hpp"

namespace quorvane {

// The accessibility interface to other applications' user interface. Every call is a
// synchronous message to the application and answers with an AXError status.
class Accessibility {
public:
    // AXError values Quorvane tells apart.
    static constexpr std::int32_t kSuccess = 0;
    static constexpr std::int32_t kFailure = -25200;
    static constexpr std::int32_t kCannotComplete = -25204;
    static constexpr std::int32_t kAttributeUnsupported = -25205;
    static constexpr std::int32_t kNotificationAlreadyRegistered = -25209;
    static constexpr std::int32_t kAPIDisabled = -25211;
    static constexpr std::int32_t kNoValue = -25212;

    using ObserverCallback =
        std::function<void(const Element& element, const std::string& notification)>;

    virtual ~Accessibility() = default;

    virtual Element systemWide() = 0;
    virtual Element application(int pid) = 0;

    virtual std::int32_t copyAttribute(const Element& element, std::string_view attribute,
                                       AccessibilityValue& value) = 0;
    virtual std::int32_t setAttribute(const Element& element, std::string_view attribute,
                                      const AccessibilityValue& value) = 0;
    // AXUIElementCopyParameterizedAttributeValue, such as the bounds of a text range.
    virtual std::int32_t copyParameterizedAttribute(const Element& /*element*/,
                                                    std::string_view /*attribute*/,
                                                    const AccessibilityValue& /*parameter*/,
                                                    AccessibilityValue& /*value*/) {
        return kNoValue;
    }
    // Top-left global coordinates; `application` may be the system-wide element.
    virtual std::int32_t elementAtPosition(const Element& application, float x, float y,
                                           Element& element) = 0;
    virtual std::int32_t pid(const Element& element, int& pid) = 0;
    virtual std::int32_t performAction(const Element& element, std::string_view action) = 0;
    // On the system-wide element, the timeout of every call this process makes.
    virtual std::int32_t setMessagingTimeout(const Element& element, float seconds) = 0;

    // AXObserverCreate; nothing with `status` set when it fails.
    virtual std::unique_ptr<AccessibilityObserver> createObserver(int pid,
                                                                  ObserverCallback callback,
                                                                  std::int32_t& status) = 0;
};

}  // namespace quorvane
