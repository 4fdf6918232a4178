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
    // Asks an application to quit, as its own Quit command would (it may ask to save first);
    // NSRunningApplication's terminate. False when it is gone or refused.
    virtual bool terminateApplication(int /*pid*/) { return false; }
    // Hides an application, as ⌘H does. False when it is gone or refused.
    virtual bool hideApplication(int /*pid*/) { return false; }
    // Opens the application with this bundle identifier without waiting for it to finish
    // launching. False when no such application is installed or it cannot be opened.
    virtual bool launchApplication(const std::string& /*bundleID*/) { return false; }

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
