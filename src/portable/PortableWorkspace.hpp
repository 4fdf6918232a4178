#pragma once

#include "platform/Workspace.hpp"

namespace quorvane {

// The command line opens nothing: System Settings URLs mean nothing outside macOS.
class PortableWorkspace : public Workspace {
public:
    bool openURL(const std::string&) override { return false; }
};

}  // namespace quorvane
