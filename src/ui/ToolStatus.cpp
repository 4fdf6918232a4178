#include "ui/ToolStatus.hpp"

#include "app/PermissionCenter.hpp"
#include "app/ToolRegistry.hpp"

namespace quorvane {

std::string ToolStatus::describe(const ToolRegistry& registry, const Tool& tool) {
    if (!tool.isAvailable()) {
        return kUnavailable;
    }
    if (!registry.enabledIDs().contains(tool.id())) {
        return kOff;
    }
    if (registry.runningIDs().contains(tool.id())) {
        return kOn;
    }
    std::string missing;
    std::size_t count = 0;
    for (const auto permission : tool.requiredPermissions()) {
        if (!registry.permissions().isGranted(permission)) {
            missing += (count++ == 0 ? "" : " and ") + std::string(title(permission));
        }
    }
    if (count == 0) {
        return kOn;
    }
    return "Waiting for " + missing + (count == 1 ? " permission" : " permissions");
}

}  // namespace quorvane
