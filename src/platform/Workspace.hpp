#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/RunningApplication.hpp"
#include "platform/WorkspaceNotification.hpp"

namespace quorvane {

// The shared workspace: other applications and the system's URL handling.
class Workspace {
public:
    // The application a notification names, or nullptr for the ones that name none.
    using Handler = std::function<void(const RunningApplication* application)>;

    virtual ~Workspace() = default;

    // Opens a URL with its handler; false when the system refused.
    virtual bool openURL(const std::string& url) = 0;

    virtual std::vector<RunningApplication> runningApplications() = 0;
    virtual std::optional<RunningApplication> runningApplication(int pid) = 0;
    virtual std::optional<RunningApplication> frontmostApplication() = 0;
    // Quorvane's own process.
    virtual int currentProcessID() = 0;
    // Brings an application to the front (activateWithOptions: with no options). False when it
    // is gone or the system refused. Nothing to activate where there are no applications.
    virtual bool activate(int /*pid*/) { return false; }

    // On the workspace's own notification centre, delivered on the main queue.
    [[nodiscard]] virtual Subscription observe(WorkspaceNotification notification,
                                               Handler handler) = 0;
    // A notification of the distributed centre, such as "com.apple.screenIsUnlocked".
    [[nodiscard]] virtual Subscription observeDistributed(const std::string& name,
                                                          std::function<void()> handler) = 0;
    // Called whenever the list of running applications changes.
    [[nodiscard]] virtual Subscription observeRunningApplications(
        std::function<void()> handler) = 0;
};

}  // namespace quorvane
