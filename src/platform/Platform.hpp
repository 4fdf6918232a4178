#pragma once

namespace quorvane {

class MenuBar;
class NotificationBus;
class PermissionProbe;
class Preferences;
class Scheduler;
class Workspace;

// Every port, handed to the registry and the tools at construction. The app fills it with the
// macOS implementations, the command line with the portable ones, tests with fakes.
struct Platform {
    Preferences& preferences;
    Scheduler& scheduler;
    PermissionProbe& permissionProbe;
    Workspace& workspace;
    NotificationBus& notifications;
    MenuBar& menuBar;
};

}  // namespace quorvane
