#pragma once

#include "platform/Platform.hpp"
#include "portable/InProcessNotificationBus.hpp"
#include "portable/MemoryPreferences.hpp"
#include "support/FakeMenuBar.hpp"
#include "support/FakePermissionProbe.hpp"
#include "support/FakeWorkspace.hpp"
#include "support/ManualScheduler.hpp"

namespace quorvane {

// Every port as a fake, bundled the way the app bundles the real ones.
struct FakePlatform {
    MemoryPreferences preferences;
    ManualScheduler scheduler;
    FakePermissionProbe permissionProbe;
    FakeWorkspace workspace;
    InProcessNotificationBus notifications;
    // What the fakes below were asked to do, in order.
    std::vector<std::string> calls;
    FakeMenuBar menuBar{calls};

    Platform platform() {
        return {preferences, scheduler, permissionProbe, workspace, notifications, menuBar};
    }
};

}  // namespace quorvane
