#include "mac/MacPorts.hpp"

#include <memory>
#include <string>

#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacObservation.hpp"
#include "mac/MacRelay.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

RunningApplication describe(NSRunningApplication* app) {
    RunningApplication result;
    result.pid = static_cast<int>(app.processIdentifier);
    result.bundleID = utf8String(app.bundleIdentifier);
    // unconfirmed: check on a Mac first (localizedName, -[NSDate timeIntervalSinceReferenceDate]
    // and -[NSURL absoluteString] are not in the fact sheet; the other properties are).
    result.name = utf8String(app.localizedName);
    result.activationPolicy =
        static_cast<RunningApplication::ActivationPolicy>(app.activationPolicy);
    if (NSDate* launched = app.launchDate) {
        result.launchDate = launched.timeIntervalSinceReferenceDate;
    }
    result.hidden = app.hidden;
    result.terminated = app.terminated;
    result.bundleURL = utf8String(app.bundleURL.absoluteString);
    return result;
}

// nil when no such process runs, and a message to nil answers NO.
NSRunningApplication* applicationWithPid(int pid) {
    return [NSRunningApplication runningApplicationWithProcessIdentifier:static_cast<pid_t>(pid)];
}

NSNotificationName notificationName(WorkspaceNotification notification) {
    switch (notification) {
        case WorkspaceNotification::didLaunchApplication:
            return NSWorkspaceDidLaunchApplicationNotification;
        case WorkspaceNotification::didTerminateApplication:
            return NSWorkspaceDidTerminateApplicationNotification;
        case WorkspaceNotification::didActivateApplication:
            return NSWorkspaceDidActivateApplicationNotification;
        case WorkspaceNotification::activeSpaceDidChange:
            return NSWorkspaceActiveSpaceDidChangeNotification;
        case WorkspaceNotification::screensDidWake:
            return NSWorkspaceScreensDidWakeNotification;
        case WorkspaceNotification::didWake:
            return NSWorkspaceDidWakeNotification;
    }
    return nil;
}

// The shared NSWorkspace and the running applications it knows.
class MacWorkspace final : public Workspace {
public:
    bool openURL(const std::string& url) override {
        @autoreleasepool {
            NSString* text = makeNSString(url);
            if (!text) {
                return false;
            }
            // unconfirmed: check on a Mac first (+[NSURL URLWithString:] and -[NSWorkspace
            // openURL:] are not in the fact sheet). URLWithString: gives nil for malformed text.
            NSURL* target = [NSURL URLWithString:text];
            if (!target) {
                return false;
            }
            return [[NSWorkspace sharedWorkspace] openURL:target];
        }
    }

    std::vector<RunningApplication> runningApplications() override {
        @autoreleasepool {
            std::vector<RunningApplication> result;
            // unconfirmed: check on a Mac first (-[NSWorkspace runningApplications] is not in the
            // fact sheet).
            for (NSRunningApplication* app in [[NSWorkspace sharedWorkspace] runningApplications]) {
                result.push_back(describe(app));
            }
            return result;
        }
    }

    std::optional<RunningApplication> runningApplication(int pid) override {
        @autoreleasepool {
            NSRunningApplication* app = applicationWithPid(pid);
            return app ? std::optional(describe(app)) : std::nullopt;
        }
    }

    std::optional<RunningApplication> frontmostApplication() override {
        @autoreleasepool {
            // unconfirmed: check on a Mac first (-[NSWorkspace frontmostApplication] is not in the
            // fact sheet).
            NSRunningApplication* app = [[NSWorkspace sharedWorkspace] frontmostApplication];
            return app ? std::optional(describe(app)) : std::nullopt;
        }
    }

    int currentProcessID() override {
        return static_cast<int>([NSRunningApplication currentApplication].processIdentifier);
    }

    bool activate(int pid) override {
        @autoreleasepool {
            // No options: ignoring other apps has no effect since macOS 14, and all windows would
            // pull every window of the app forward, not just the one the user meant.
            return [applicationWithPid(pid)
                activateWithOptions:static_cast<NSApplicationActivationOptions>(0)];
        }
    }

    // From Apple's NSRunningApplication reference (check on a Mac first): -terminate "attempts to
    // quit the receiver normally" and returns NO when the request could not be sent (an app that
    // already quit); the app may still ask the user about unsaved documents. -hide returns whether
    // the request was sent. Neither waits for the app to do it.
    bool terminateApplication(int pid) override {
        @autoreleasepool {
            return [applicationWithPid(pid) terminate];
        }
    }

    bool hideApplication(int pid) override {
        @autoreleasepool {
            return [applicationWithPid(pid) hide];
        }
    }

    // -URLForApplicationWithBundleIdentifier: gives nil when no such app is installed;
    // -openApplicationAtURL:configuration:completionHandler: launches asynchronously (macOS 10.15+)
    // and calls back on a concurrent queue, so the handler is left out: the caller places windows
    // as they appear rather than waiting for the launch.
    bool launchApplication(const std::string& bundleID) override {
        @autoreleasepool {
            NSString* identifier = makeNSString(bundleID);
            NSURL* url = identifier ? [[NSWorkspace sharedWorkspace]
                                          URLForApplicationWithBundleIdentifier:identifier]
                                    : nil;
            if (!url) {
                return false;
            }
            [[NSWorkspace sharedWorkspace]
                openApplicationAtURL:url
                       configuration:[NSWorkspaceOpenConfiguration configuration]
                   completionHandler:nil];
            return true;
        }
    }

    [[nodiscard]] Subscription observe(WorkspaceNotification notification,
                                       Handler handler) override {
        @autoreleasepool {
            // Workspace notifications go to the workspace's own centre, not the default one.
            return observeOnMainQueue([[NSWorkspace sharedWorkspace] notificationCenter],
                                      notificationName(notification), nil,
                                      [handler = std::move(handler)](NSNotification* note) {
                                          id app = note.userInfo[NSWorkspaceApplicationKey];
                                          if ([app isKindOfClass:[NSRunningApplication class]]) {
                                              const RunningApplication described = describe(app);
                                              handler(&described);
                                          } else {
                                              handler(nullptr);
                                          }
                                      });
        }
    }

    [[nodiscard]] Subscription observeDistributed(const std::string& name,
                                                  std::function<void()> handler) override {
        @autoreleasepool {
            NSString* notification = makeNSString(name);
            if (!notification) {
                return {};
            }
            // The ones observed here (a screen unlocked) matter when they happen, not when
            // Quorvane is next active.
            return observeDistributedAtOnce(
                notification, [handler = std::move(handler)](NSNotification*) { handler(); });
        }
    }

    [[nodiscard]] Subscription observeRunningApplications(std::function<void()> handler) override {
        @autoreleasepool {
            auto observer = std::make_shared<CancellableAction<NSNotification*>>(
                [handler = std::move(handler)](NSNotification*) { handler(); });
            QuorvaneRelay* relay = [[QuorvaneRelay alloc] initWithHandler:observer];
            // unconfirmed: check on a Mac first (key-value observation of runningApplications and
            // -removeObserver:forKeyPath: are not in the fact sheet).
            [[NSWorkspace sharedWorkspace] addObserver:relay
                                            forKeyPath:@"runningApplications"
                                               options:NSKeyValueObservingOptionNew
                                               context:nullptr];
            // The block keeps the relay alive until the observation is removed.
            return Subscription([observer, relay] {
                observer->cancelled = true;
                [[NSWorkspace sharedWorkspace] removeObserver:relay
                                                   forKeyPath:@"runningApplications"];
            });
        }
    }
};

}  // namespace

std::unique_ptr<Workspace> makeMacWorkspace() { return std::make_unique<MacWorkspace>(); }

}  // namespace quorvane
