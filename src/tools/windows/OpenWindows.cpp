#include "tools/windows/OpenWindows.hpp"

#include "platform/Workspace.hpp"

namespace quorvane {

std::vector<OpenWindows::Window> OpenWindows::list() {
    std::vector<Window> result;
    const int own = workspace_.currentProcessID();
    for (const auto& app : workspace_.runningApplications()) {
        if (app.pid == own || app.terminated ||
            app.activationPolicy != RunningApplication::ActivationPolicy::regular) {
            continue;
        }
        for (const Element& window : windows_.windows(app.pid)) {
            if (!windows_.isStandard(window) || windows_.isMinimized(window)) {
                continue;
            }
            const auto frame = windows_.frame(window);
            if (!frame) {
                continue;
            }
            result.push_back({app.pid,
                              window,
                              {app.bundleID, app.name.empty() ? app.bundleID : app.name,
                               windows_.title(window), *frame}});
        }
    }
    return result;
}

std::vector<WindowRecord> OpenWindows::records(const std::vector<Window>& windows) {
    std::vector<WindowRecord> result;
    result.reserve(windows.size());
    for (const auto& window : windows) {
        result.push_back(window.record);
    }
    return result;
}

}  // namespace quorvane
