#pragma once

namespace quorvane {

// The shared workspace's notifications that Quorvane listens to. The first three name an
// application.
enum class WorkspaceNotification {
    didLaunchApplication,
    didTerminateApplication,
    didActivateApplication,
    activeSpaceDidChange,
    screensDidWake,
    didWake,
};

}  // namespace quorvane
