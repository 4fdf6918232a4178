#pragma once

#include <string>

#include "platform/Workspace.hpp"

namespace quorvane {

// The shared NSWorkspace and the running applications it knows.
class MacWorkspace final : public Workspace {
public:
    bool openURL(const std::string& url) override;
    std::vector<RunningApplication> runningApplications() override;
    std::optional<RunningApplication> runningApplication(int pid) override;
    std::optional<RunningApplication> frontmostApplication() override;
    int currentProcessID() override;
    bool activate(int pid) override;
    bool terminateApplication(int pid) override;
    bool hideApplication(int pid) override;
    bool launchApplication(const std::string& bundleID) override;
    [[nodiscard]] Subscription observe(WorkspaceNotification notification,
                                       Handler handler) override;
    [[nodiscard]] Subscription observeDistributed(const std::string& name,
                                                  std::function<void()> handler) override;
    [[nodiscard]] Subscription observeRunningApplications(std::function<void()> handler) override;
};

}  // namespace quorvane
