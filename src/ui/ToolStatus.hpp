#pragma once

#include <string>

namespace quorvane {

class Tool;
class ToolRegistry;

// How a tool stands, in the words the settings window and the menu use.
struct ToolStatus {
    static constexpr const char* kUnavailable = "Not available in this version";
    static constexpr const char* kOff = "Off";
    static constexpr const char* kOn = "On";

    // "Waiting for Accessibility permission" while a switched-on tool lacks a permission.
    static std::string describe(const ToolRegistry& registry, const Tool& tool);
};

}  // namespace quorvane
