#pragma once

#include "platform/Platform.hpp"
#include "portable/InProcessNotificationBus.hpp"
#include "portable/MemoryPreferences.hpp"
#include "support/FakeAudioHardware.hpp"
#include "support/FakePermissionProbe.hpp"
#include "support/FakeProcessFacts.hpp"
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
    FakeAudioHardware audioHardware;
    FakeProcessFacts processFacts;

    Platform platform() {
        return {preferences,   scheduler,     permissionProbe, workspace,
                notifications, audioHardware, processFacts};
    }
};

}  // namespace quorvane
