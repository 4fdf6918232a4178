#pragma once

#include "platform/FirmwareVariables.hpp"

namespace quorvane {

// NVRAM variables as the I/O Registry's "options" node shows them to any user.
class MacFirmwareVariables final : public FirmwareVariables {
public:
    std::optional<std::string> value(const std::string& name) override;
};

}  // namespace quorvane
