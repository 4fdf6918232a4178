#pragma once

#include <string>
#include <vector>

#include "app/Permission.hpp"
#include "app/ToolCategory.hpp"

namespace quorvane {

// What a tool is, fixed when it is constructed: the first seven things every tool answers.
struct ToolIdentity {
    std::string id;  // lower-case words joined by hyphens; keys the tool's preferences
    std::string name;
    std::string summary;
    std::string systemImage;  // an SF Symbols name
    std::vector<std::string> keywords;
    ToolCategory category = ToolCategory::system;
    std::vector<Permission> requiredPermissions;
};

}  // namespace quorvane
