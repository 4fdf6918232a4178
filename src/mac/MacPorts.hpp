#pragma once

#include <memory>

#include "platform/Accessibility.hpp"
#include "platform/AppInstance.hpp"
#include "platform/AppWindows.hpp"
#include "platform/AudioHardware.hpp"
#include "platform/CalendarEvents.hpp"
#include "platform/ChargingHelper.hpp"
#include "platform/ColorSampler.hpp"
#include "platform/DateFormatting.hpp"
#include "platform/DefaultApplications.hpp"
#include "platform/DiskArbitration.hpp"
#include "platform/DisplayConfiguration.hpp"
#include "platform/DisplayControl.hpp"
#include "platform/EventMonitors.hpp"
#include "platform/EventSystem.hpp"
#include "platform/FileIcons.hpp"
#include "platform/FileSystem.hpp"
#include "platform/FinderExtensionChannel.hpp"
#include "platform/FirmwareVariables.hpp"
#include "platform/HIDBatteries.hpp"
#include "platform/HIDEventServices.hpp"
#include "platform/Hashing.hpp"
#include "platform/HostStatistics.hpp"
#include "platform/HotKeySystem.hpp"
#include "platform/KeyboardLayout.hpp"
#include "platform/ListPanel.hpp"
#include "platform/LoginItem.hpp"
#include "platform/MenuBar.hpp"
#include "platform/Overlay.hpp"
#include "platform/Panel.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PermissionProbe.hpp"
#include "platform/PowerManagement.hpp"
#include "platform/PowerSources.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/ProcessFacts.hpp"
#include "platform/Scheduler.hpp"
#include "platform/ScreenCapture.hpp"
#include "platform/Screens.hpp"
#include "platform/SystemLog.hpp"
#include "platform/TextRecognition.hpp"
#include "platform/Thumbnails.hpp"
#include "platform/UserCalendar.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

// The macOS implementation of every port, and of the objects ports make, one factory each. The
// classes live in their own .mm files, so only the platform interfaces are visible outside them.
std::unique_ptr<Accessibility> makeMacAccessibility();
std::unique_ptr<AppInstance> makeMacAppInstance();
std::unique_ptr<AppWindows> makeMacAppWindows();
std::unique_ptr<AudioHardware> makeMacAudioHardware();
std::unique_ptr<CalendarEvents> makeMacCalendarEvents();
std::unique_ptr<ChargingHelper> makeMacChargingHelper();
std::unique_ptr<ColorSampler> makeMacColorSampler();
std::unique_ptr<DateFormatting> makeMacDateFormatting();
std::unique_ptr<DefaultApplications> makeMacDefaultApplications();
std::unique_ptr<DiskArbitration> makeMacDiskArbitration();
std::unique_ptr<DisplayConfiguration> makeMacDisplayConfiguration();
std::unique_ptr<DisplayControl> makeMacDisplayControl();
std::unique_ptr<EventMonitors> makeMacEventMonitors();
std::unique_ptr<EventSystem> makeMacEventSystem();
std::unique_ptr<FileIcons> makeMacFileIcons();
std::unique_ptr<FileSystem> makeMacFileSystem();
std::unique_ptr<FinderExtensionChannel> makeMacFinderExtensionChannel();
std::unique_ptr<FirmwareVariables> makeMacFirmwareVariables();
std::unique_ptr<HIDBatteries> makeMacHIDBatteries();
std::unique_ptr<HIDEventServices> makeMacHIDEventServices();
std::unique_ptr<Hashing> makeMacHashing();
std::unique_ptr<HostStatistics> makeMacHostStatistics();
std::unique_ptr<HotKeySystem> makeMacHotKeySystem();
std::unique_ptr<KeyboardLayout> makeMacKeyboardLayout(Workspace& workspace);
std::unique_ptr<ListPanel> makeMacListPanel(ListPanel::Handlers handlers);
std::unique_ptr<LoginItem> makeMacLoginItem();
std::unique_ptr<MenuBar> makeMacMenuBar();
std::unique_ptr<Overlay> makeMacOverlay();
std::unique_ptr<Panel> makeMacPanel();
std::unique_ptr<Pasteboard> makeMacPasteboard();
std::unique_ptr<PermissionProbe> makeMacPermissionProbe();
std::unique_ptr<PowerManagement> makeMacPowerManagement();
std::unique_ptr<PowerSources> makeMacPowerSources();
std::unique_ptr<PreferenceDomains> makeMacPreferenceDomains();
std::unique_ptr<ProcessFacts> makeMacProcessFacts();
std::unique_ptr<Scheduler> makeMacScheduler();
std::unique_ptr<ScreenCapture> makeMacScreenCapture();
std::unique_ptr<Screens> makeMacScreens();
std::unique_ptr<SystemLog> makeMacSystemLog();
std::unique_ptr<TextRecognition> makeMacTextRecognition();
std::unique_ptr<Thumbnails> makeMacThumbnails();
std::unique_ptr<UserCalendar> makeMacUserCalendar();
std::unique_ptr<WindowList> makeMacWindowList();
std::unique_ptr<Workspace> makeMacWorkspace();

}  // namespace quorvane
