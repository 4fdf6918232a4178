#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/RunningApplication.hpp"

namespace quorvane {

// What an app's shortcut does right now: hides the app when it is already in front, brings it
// forward when it runs, and opens it otherwise. A shortcut thus toggles an app in and out of
// view, like a quake-style terminal.
struct AppShortcutAction {
    enum class Kind { launch, activate, hide };

    Kind kind = Kind::launch;
    int pid = 0;  // the process to activate or hide

    static AppShortcutAction decide(const std::string& bundleID,
                                    const std::optional<RunningApplication>& frontmost,
                                    const std::vector<RunningApplication>& running);

    friend bool operator==(const AppShortcutAction&, const AppShortcutAction&) = default;
};

}  // namespace quorvane
