#pragma once

#include "platform/HIDEventServices.hpp"

namespace quorvane {

// Outside macOS there is no I/O registry to look in: no keyboard is ever found.
class PortableHIDEventServices : public HIDEventServices {
public:
    std::optional<PreferenceValue> property(std::int64_t, std::int64_t,
                                            const std::string&) override {
        return std::nullopt;
    }
};

}  // namespace quorvane
