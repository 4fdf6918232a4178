#pragma once

#include <string>

namespace quorvane {

// The shared workspace: other applications and the system's URL handling.
class Workspace {
public:
    virtual ~Workspace() = default;

    // Opens a URL with its handler; false when the system refused.
    virtual bool openURL(const std::string& url) = 0;
};

}  // namespace quorvane
