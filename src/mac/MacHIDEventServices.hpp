#pragma once

#include "platform/HIDEventServices.hpp"

namespace quorvane {

// The I/O registry through IOKit: a matching dictionary, one service, one property.
class MacHIDEventServices final : public HIDEventServices {
public:
    std::optional<PreferenceValue> property(std::int64_t vendorID, std::int64_t productID,
                                            const std::string& key) override;
};

}  // namespace quorvane
