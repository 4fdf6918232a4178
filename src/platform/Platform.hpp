#pragma once

namespace quorvane {

class MenuBar;
class AudioHardware;
class NotificationBus;
class PermissionProbe;
class Preferences;
class ProcessFacts;
class Scheduler;
class Workspace;
class EventSystem;
class HotKeySystem;
class Accessibility;
class EventMonitors;
class Screens;
class KeyboardLayout;
class WindowList;
class PreferenceDomains;
class ChildProcesses;
class HIDEventServices;
class Pasteboard;
class Thumbnails;
class Hashing;
class DateFormatting;
class DisplayConfiguration;
class SystemLog;
class PowerManagement;
class PowerSources;
class ChargingHelper;
class DiskArbitration;
class HIDBatteries;
struct InputServices;
class FileSystem;
class Archives;
class FinderExtensionChannel;
class ScreenCapture;
class TextRecognition;
class ColorSampler;
class FirmwareVariables;
class FileIcons;
class DefaultApplications;
class HostStatistics;
class UserCalendar;
class CalendarEvents;
class DisplayControl;

// Every port, handed to the registry and the tools at construction. The app fills it with the
// macOS implementations, the command line with the portable ones, tests with fakes.
struct Platform {
    Preferences& preferences;
    Scheduler& scheduler;
    PermissionProbe& permissionProbe;
    Workspace& workspace;
    NotificationBus& notifications;
    EventSystem& events;
    HotKeySystem& hotKeys;
    Accessibility& accessibility;
    EventMonitors& eventMonitors;
    Screens& screens;
    MenuBar& menuBar;
    AudioHardware& audioHardware;
    ProcessFacts& processFacts;
    // Not a port: the process-wide input infrastructure built on the ports above (the hot-key
    // centre, the HUD), handed around with them so every tool reaches the one instance.
    InputServices& input;
    KeyboardLayout& keyboardLayout;
    WindowList& windowList;
    // Other programs' preference domains, and the programs Quorvane runs (killall, hidutil).
    PreferenceDomains& preferenceDomains;
    ChildProcesses& childProcesses;
    HIDEventServices& hidEventServices;
    Pasteboard& pasteboard;
    Thumbnails& thumbnails;
    Hashing& hashing;
    DateFormatting& dateFormatting;
    DisplayConfiguration& displayConfiguration;
    SystemLog& systemLog;
    PowerManagement& power;
    // The file tools: listing, the Trash and property-list files; archives; the Finder
    // extension's messages.
    FileSystem& fileSystem;
    Archives& archives;
    FinderExtensionChannel& finderExtension;
    ScreenCapture& screenCapture;
    TextRecognition& textRecognition;
    ColorSampler& colorSampler;
    // NVRAM reads, custom file icons, and the handlers of content types and URL schemes.
    FirmwareVariables& firmwareVariables;
    FileIcons& fileIcons;
    DefaultApplications& defaultApplications;
    HostStatistics& hostStatistics;
    UserCalendar& userCalendar;
    CalendarEvents& calendarEvents;
    DisplayControl& displayControl;
    PowerSources& powerSources;
    ChargingHelper& chargingHelper;
    DiskArbitration& diskArbitration;
    HIDBatteries& hidBatteries;
};

}  // namespace quorvane
