#pragma once

#include <string>

#include "platform/Workspace.hpp"

namespace quorvane {

// The shared NSWorkspace.
class MacWorkspace final : public Workspace {
public:
    bool openURL(const std::string& url) override;
};

}  // namespace quorvane
