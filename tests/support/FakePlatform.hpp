#pragma once

#include "input/InputServices.hpp"
#include "platform/Platform.hpp"
#include "portable/InProcessNotificationBus.hpp"
#include "portable/MemoryPreferences.hpp"
#include "portable/PortableHashing.hpp"
#include "portable/SystemArchives.hpp"
#include "support/FakeAccessibility.hpp"
#include "support/FakeAudioHardware.hpp"
#include "support/FakeCalendarEvents.hpp"
#include "support/FakeChargingHelper.hpp"
#include "support/FakeChildProcesses.hpp"
#include "support/FakeColorSampler.hpp"
#include "support/FakeDateFormatting.hpp"
#include "support/FakeDefaultApplications.hpp"
#include "support/FakeDiskArbitration.hpp"
#include "support/FakeDisplayConfiguration.hpp"
#include "support/FakeDisplayControl.hpp"
#include "support/FakeEventMonitors.hpp"
#include "support/FakeEventSystem.hpp"
#include "support/FakeFileIcons.hpp"
#include "support/FakeFileSystem.hpp"
#include "support/FakeFinderExtensionChannel.hpp"
#include "support/FakeFirmwareVariables.hpp"
#include "support/FakeHIDBatteries.hpp"
#include "support/FakeHIDEventServices.hpp"
#include "support/FakeHostStatistics.hpp"
#include "support/FakeHotKeySystem.hpp"
#include "support/FakeKeyboardLayout.hpp"
#include "support/FakeMenuBar.hpp"
#include "support/FakePasteboard.hpp"
#include "support/FakePermissionProbe.hpp"
#include "support/FakePowerManagement.hpp"
#include "support/FakePowerSources.hpp"
#include "support/FakePreferenceDomains.hpp"
#include "support/FakeProcessFacts.hpp"
#include "support/FakeScreenCapture.hpp"
#include "support/FakeScreens.hpp"
#include "support/FakeSystemLog.hpp"
#include "support/FakeTextRecognition.hpp"
#include "support/FakeThumbnails.hpp"
#include "support/FakeUserCalendar.hpp"
#include "support/FakeWindowList.hpp"
#include "support/FakeWorkspace.hpp"
#include "support/ManualScheduler.hpp"

namespace quorvane {

// Every port as a fake, bundled the way the app bundles the real ones.
// Made and destroyed out of line: constructing every fake where a test does would make each
// test file compile every fake's virtual methods again, seconds per file.
struct FakePlatform {
    FakePlatform();
    ~FakePlatform();

    MemoryPreferences preferences;
    ManualScheduler scheduler;
    FakePermissionProbe permissionProbe;
    FakeWorkspace workspace;
    InProcessNotificationBus notifications;
    FakeEventSystem events;
    FakeHotKeySystem hotKeys;
    FakeAccessibility accessibility;
    FakeEventMonitors eventMonitors;
    FakeScreens screens;
    // What the fakes below were asked to do, in order.
    std::vector<std::string> calls;
    FakeMenuBar menuBar{calls};
    FakeAudioHardware audioHardware;
    FakeProcessFacts processFacts;
    InputServices input{hotKeys, screens, scheduler};
    FakeKeyboardLayout keyboardLayout;
    FakeWindowList windowList;
    FakePreferenceDomains preferenceDomains;
    FakeChildProcesses childProcesses;
    FakeHIDEventServices hidEventServices;
    FakePasteboard pasteboard;
    FakeThumbnails thumbnails;
    PortableHashing hashing;
    FakeDateFormatting dateFormatting;
    FakeDisplayConfiguration displayConfiguration;
    FakeSystemLog systemLog;
    FakePowerManagement power;
    FakeFileSystem fileSystem;
    // The real archive library where the build has it: archives are made in the tests.
    std::unique_ptr<Archives> archives = makeSystemArchives();
    FakeFinderExtensionChannel finderExtension;
    FakeScreenCapture screenCapture;
    FakeTextRecognition textRecognition;
    FakeColorSampler colorSampler;
    FakeFirmwareVariables firmwareVariables;
    FakeFileIcons fileIcons;
    FakeDefaultApplications defaultApplications;
    FakeHostStatistics hostStatistics;
    FakeUserCalendar userCalendar;
    FakeCalendarEvents calendarEvents;
    FakeDisplayControl displayControl;
    FakePowerSources powerSources;
    FakeChargingHelper chargingHelper;
    FakeDiskArbitration diskArbitration;
    FakeHIDBatteries hidBatteries;

    Platform platform();
};

}  // namespace quorvane
