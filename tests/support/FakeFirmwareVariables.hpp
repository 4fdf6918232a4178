#pragma once

#include <map>

#include "platform/FirmwareVariables.hpp"

namespace quorvane {

struct FakeFirmwareVariables : FirmwareVariables {
    std::map<std::string, std::string> variables;
    std::optional<std::string> value(const std::string& name) override {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    }
};

}  // namespace quorvane
