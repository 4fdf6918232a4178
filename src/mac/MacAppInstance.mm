#include "mac/MacPorts.hpp"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

#include "app/RestartArguments.hpp"
#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"
#include "mac/MacViews.hpp"

namespace quorvane {

namespace {

using Launch = CancellableAction<const std::string&>;

// NSApplication's termination, a second instance of the bundle through NSWorkspace, and the
// process a restart replaces.
class MacAppInstance final : public AppInstance {
public:
    void terminate() override {
        // unconfirmed: check on a Mac first (-[NSApplication terminate:] is not in the fact
        // sheet). It runs applicationWillTerminate: and then ends the process.
        [NSApp terminate:nil];
    }

    Subscription launchNewInstance(std::function<void(const std::string&)> done) override {
        auto launch = std::make_shared<Launch>(std::move(done));
        // unconfirmed: check on a Mac first (NSWorkspaceOpenConfiguration, its
        // createsNewApplicationInstance, -openApplicationAtURL:configuration:completionHandler: and
        // NSBundle's bundleURL are from Apple's reference, not the fact sheet). The reference says
        // the handler runs on a concurrent queue, hence the hop to the main loop.
        NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
        configuration.createsNewApplicationInstance = YES;
        NSMutableArray<NSString*>* arguments = [NSMutableArray array];
        for (const auto& argument : restartArguments(getpid())) {
            [arguments addObject:makeNSString(argument)];
        }
        configuration.arguments = arguments;
        NSURL* bundle = [NSBundle mainBundle].bundleURL;
        [[NSWorkspace sharedWorkspace]
            openApplicationAtURL:bundle
                   configuration:configuration
               completionHandler:^(NSRunningApplication* application, NSError* error) {
                 const std::string reason =
                     application ? std::string() : errorText(error, "the system gave no reason");
                 runSoon(^{
                   Launch::run(launch, reason);
                 });
               }];
        return Subscription([launch] { launch->cancelled = true; });
    }

    std::optional<int> predecessor() const override {
        return replacedProcessID(utf8Strings([NSProcessInfo processInfo].arguments));
    }

    bool isRunning(int processID) const override {
        // Signal 0 only asks whether the process exists; EPERM means it does, under another user.
        return kill(processID, 0) == 0 || errno == EPERM;
    }
};

}  // namespace

std::unique_ptr<AppInstance> makeMacAppInstance() { return std::make_unique<MacAppInstance>(); }

}  // namespace quorvane
