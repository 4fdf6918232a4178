#pragma once

#include <map>
#include <memory>
#include <string_view>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"

namespace quorvane {

struct Platform;

// Builds one tool from its catalog row and the platform.
using ToolFactory = std::unique_ptr<Tool> (*)(const ToolDescriptor&, const Platform&);

// The built tools of one category, by id. Each category folder keeps its own table so that tools
// of different categories never edit the same file.
using ToolFactories = std::map<std::string_view, ToolFactory>;

template <typename BuiltTool>
std::unique_ptr<Tool> buildTool(const ToolDescriptor& descriptor, const Platform& platform) {
    return std::make_unique<BuiltTool>(descriptor, platform);
}

}  // namespace quorvane
