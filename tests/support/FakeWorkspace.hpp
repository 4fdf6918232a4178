#pragma once

#include <string>
#include <vector>

#include "platform/Workspace.hpp"

namespace quorvane {

struct FakeWorkspace : Workspace {
    std::vector<std::string> openedURLs;
    bool openURL(const std::string& url) override {
        openedURLs.push_back(url);
        return true;
    }
};

}  // namespace quorvane
