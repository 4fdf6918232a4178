#pragma once

#include <unistd.h>

#include "platform/Workspace.hpp"

namespace quorvane {

// The command line opens nothing and watches no applications: System Settings URLs and the
// workspace's notifications mean nothing outside macOS.
class PortableWorkspace : public Workspace {
public:
    bool openURL(const std::string&) override { return false; }
    std::vector<RunningApplication> runningApplications() override { return {}; }
    std::optional<RunningApplication> runningApplication(int) override { return std::nullopt; }
    std::optional<RunningApplication> frontmostApplication() override { return std::nullopt; }
    int currentProcessID() override { return static_cast<int>(getpid()); }
    Subscription observe(WorkspaceNotification, Handler) override { return {}; }
    Subscription observeDistributed(const std::string&, std::function<void()>) override {
        return {};
    }
    Subscription observeRunningApplications(std::function<void()>) override { return {}; }
};

}  // namespace quorvane
