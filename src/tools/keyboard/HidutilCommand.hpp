#pragma once

#include <string>
#include <vector>

#include "tools/keyboard/KeyMappingPair.hpp"
#include "tools/keyboard/Mapping.hpp"
#include "tools/keyboard/SystemModifierMappings.hpp"

namespace quorvane {

// The system's own tool for HID properties, and the exact arguments that set one kind of
// keyboard's user key mapping table. The table is replaced whole on every call, so each call
// carries everything that kind of keyboard should have.
struct HidutilCommand {
    static constexpr const char* kPath = "/usr/bin/hidutil";

    // The services a call changes: every keyboard that is (or is not) the built-in one.
    static std::string matching(bool builtIn);
    static std::string userKeyMapping(const std::vector<KeyMappingPair>& table);
    static std::vector<std::string> arguments(bool builtIn,
                                              const std::vector<KeyMappingPair>& table);

    // The table for one kind of keyboard: the tool's mappings that cover it, in their order,
    // then the user's own modifier changes for it.
    static std::vector<KeyMappingPair> table(const std::vector<Mapping>& mappings,
                                             const SystemModifierMappings& system, bool builtIn);

    // The call as a shell would take it, for showing to people.
    static std::string commandLine(const std::vector<std::string>& arguments);
};

}  // namespace quorvane
