#include "tools/keyboard/AppShortcutAction.hpp"

namespace quorvane {

AppShortcutAction AppShortcutAction::decide(const std::string& bundleID,
                                            const std::optional<RunningApplication>& frontmost,
                                            const std::vector<RunningApplication>& running) {
    if (frontmost && frontmost->bundleID == bundleID && !frontmost->terminated) {
        return {Kind::hide, frontmost->pid};
    }
    // A helper process can share its app's bundle id; only a regular app has windows to show.
    for (const auto& app : running) {
        if (app.bundleID == bundleID && !app.terminated &&
            app.activationPolicy == RunningApplication::ActivationPolicy::regular) {
            return {Kind::activate, app.pid};
        }
    }
    return {Kind::launch, 0};
}

}  // namespace quorvane
