#pragma once

#include "platform/FirmwareVariables.hpp"

namespace quorvane {

// No Mac firmware elsewhere: every variable reads as not set.
class PortableFirmwareVariables : public FirmwareVariables {
public:
    std::optional<std::string> value(const std::string& /*name*/) override { return std::nullopt; }
};

}  // namespace quorvane
