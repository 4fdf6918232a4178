#pragma once

#include <optional>
#include <string>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// The Mac's firmware variables (NVRAM), read as any user may. Changing them needs an
// administrator, so writes go through the system's authorisation prompt as a program run
// (see AdministratorCommand), not through this port.
class FirmwareVariables {
public:
    virtual ~FirmwareVariables() = default;

    // The variable's raw bytes; nothing when it is not set.
    virtual std::optional<std::string> value(const std::string& name) = 0;

    // A variable's bytes as the registry gives them: variables are data, and a few system ones
    // are strings; nothing for any other kind.
    static std::optional<std::string> bytes(const PreferenceValue& property);
};

}  // namespace quorvane
