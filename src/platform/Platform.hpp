#pragma once

namespace quorvane {

class AudioHardware;
class NotificationBus;
class PermissionProbe;
class Preferences;
class ProcessFacts;
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
    AudioHardware& audioHardware;
    ProcessFacts& processFacts;
};

}  // namespace quorvane
