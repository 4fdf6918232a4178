#pragma once

#include <stdexcept>
#include <string_view>

#include "app/ToolCatalog.hpp"

namespace quorvane {

// The catalog's row for a tool, so a test builds the tool exactly as the app does.
inline const ToolDescriptor& catalogDescriptor(std::string_view id) {
    for (const auto& descriptor : ToolCatalog::descriptors()) {
        if (descriptor.identity.id == id) {
            return descriptor;
        }
    }
    throw std::logic_error("no tool with this id in the catalog");
}

}  // namespace quorvane
