#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// The I/O registry's HID event services: the system's object for each attached keyboard,
// mouse and trackpad, found by the device's vendor and product ids.
class HIDEventServices {
public:
    virtual ~HIDEventServices() = default;

    // A property of the first "IOHIDEventService" whose "VendorID" and "ProductID" match.
    // Nothing when no such service is attached, it lacks the property, or the property is of a
    // kind a property list cannot hold.
    virtual std::optional<PreferenceValue> property(std::int64_t vendorID, std::int64_t productID,
                                                    const std::string& key) = 0;
};

}  // namespace quorvane
