#pragma once

#include <memory>
#include <span>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"

namespace quorvane {

struct Platform;

// The 68 tools in registry order, which is also the order they start in.
class ToolCatalog {
public:
    static std::span<const ToolDescriptor> descriptors();
    static std::vector<std::unique_ptr<Tool>> makeTools(const Platform& platform);
};

}  // namespace quorvane
