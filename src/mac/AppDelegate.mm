#include "mac/AppDelegate.hpp"

#include <memory>
#include <string>
#include <vector>

#include "app/AppLifecycle.hpp"
#include "app/OpenDocuments.hpp"
#include "app/ToolCatalog.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPorts.hpp"
#include "mac/MacNotificationBus.hpp"
#include "mac/MacPreferences.hpp"
#include "mac/MacStrings.hpp"
#include "platform/Platform.hpp"
#include "portable/SpawnedChildProcesses.hpp"
#include "ui/MenuModel.hpp"
#include "input/InputServices.hpp"
#include "portable/SystemArchives.hpp"

namespace quorvane {

// Everything the running app is made of: the ports first, then the lifecycle, which builds
// the permission centre, the tools and the registry on launch. Members are destroyed in
// reverse, so each outlives its users.
struct AppState {
    MacPreferences preferences;
    std::unique_ptr<Scheduler> scheduler = makeMacScheduler();
    std::unique_ptr<PermissionProbe> permissionProbe = makeMacPermissionProbe();
    std::unique_ptr<Workspace> workspace = makeMacWorkspace();
    MacNotificationBus notifications{MacNotificationBus::Mode::inApplication};
    std::unique_ptr<EventSystem> events = makeMacEventSystem();
    std::unique_ptr<HotKeySystem> hotKeys = makeMacHotKeySystem();
    std::unique_ptr<Accessibility> accessibility = makeMacAccessibility();
    std::unique_ptr<EventMonitors> eventMonitors = makeMacEventMonitors();
    std::unique_ptr<Screens> screens = makeMacScreens();
    std::unique_ptr<MenuBar> menuBar = makeMacMenuBar();
    std::unique_ptr<AudioHardware> audioHardware = makeMacAudioHardware();
    std::unique_ptr<ProcessFacts> processFacts = makeMacProcessFacts();
    InputServices input{*hotKeys, *screens, *scheduler};
    std::unique_ptr<KeyboardLayout> keyboardLayout = makeMacKeyboardLayout(*workspace);
    std::unique_ptr<WindowList> windowList = makeMacWindowList();
    std::unique_ptr<PreferenceDomains> preferenceDomains = makeMacPreferenceDomains();
    // posix_spawn is plain POSIX, so the portable runner is the Mac one too.
    SpawnedChildProcesses childProcesses{*scheduler};
    std::unique_ptr<HIDEventServices> hidEventServices = makeMacHIDEventServices();
    std::unique_ptr<Pasteboard> pasteboard = makeMacPasteboard();
    std::unique_ptr<Thumbnails> thumbnails = makeMacThumbnails();
    std::unique_ptr<Hashing> hashing = makeMacHashing();
    std::unique_ptr<DateFormatting> dateFormatting = makeMacDateFormatting();
    std::unique_ptr<DisplayConfiguration> displayConfiguration = makeMacDisplayConfiguration();
    std::unique_ptr<SystemLog> systemLog = makeMacSystemLog();
    std::unique_ptr<PowerManagement> power = makeMacPowerManagement();
    std::unique_ptr<FileSystem> fileSystem = makeMacFileSystem();
    // The system's libarchive, through the same code as everywhere else.
    std::unique_ptr<Archives> archives = makeSystemArchives();
    std::unique_ptr<FinderExtensionChannel> finderExtension = makeMacFinderExtensionChannel();
    std::unique_ptr<ScreenCapture> screenCapture = makeMacScreenCapture();
    std::unique_ptr<TextRecognition> textRecognition = makeMacTextRecognition();
    std::unique_ptr<ColorSampler> colorSampler = makeMacColorSampler();
    std::unique_ptr<FirmwareVariables> firmwareVariables = makeMacFirmwareVariables();
    std::unique_ptr<FileIcons> fileIcons = makeMacFileIcons();
    std::unique_ptr<DefaultApplications> defaultApplications = makeMacDefaultApplications();
    std::unique_ptr<HostStatistics> hostStatistics = makeMacHostStatistics();
    std::unique_ptr<UserCalendar> userCalendar = makeMacUserCalendar();
    std::unique_ptr<CalendarEvents> calendarEvents = makeMacCalendarEvents();
    std::unique_ptr<DisplayControl> displayControl = makeMacDisplayControl();
    std::unique_ptr<PowerSources> powerSources = makeMacPowerSources();
    std::unique_ptr<ChargingHelper> chargingHelper = makeMacChargingHelper();
    std::unique_ptr<DiskArbitration> diskArbitration = makeMacDiskArbitration();
    std::unique_ptr<HIDBatteries> hidBatteries = makeMacHIDBatteries();

    Platform platform{preferences,
                      *scheduler,
                      *permissionProbe,
                      *workspace,
                      notifications,
                      *events,
                      *hotKeys,
                      *accessibility,
                      *eventMonitors,
                      *screens,
                      *menuBar,
                      *audioHardware,
                      *processFacts,
                      input,
                      *keyboardLayout,
                      *windowList,
                      *preferenceDomains,
                      childProcesses,
                      *hidEventServices,
                      *pasteboard,
                      *thumbnails,
                      *hashing,
                      *dateFormatting,
                      *displayConfiguration,
                      *systemLog,
                      *power,
                      *fileSystem,
                      *archives,
                      *finderExtension,
                      *screenCapture,
                      *textRecognition,
                      *colorSampler,
                      *firmwareVariables,
                      *fileIcons,
                      *defaultApplications,
                      *hostStatistics,
                      *userCalendar,
                      *calendarEvents,
                      *displayControl,
                      *powerSources,
                      *chargingHelper,
                      *diskArbitration,
                      *hidBatteries};
    std::unique_ptr<AppWindows> windows = makeMacAppWindows();
    std::unique_ptr<AppInstance> instance = makeMacAppInstance();
    std::unique_ptr<LoginItem> loginItem = makeMacLoginItem();
    AppLifecycle lifecycle{platform, {*windows, *instance, *loginItem}, ToolCatalog::makeTools};
};

}  // namespace quorvane

@interface QuorvaneAppDelegate : NSObject <NSApplicationDelegate>
@end

// unconfirmed: check on a Mac first. Of the AppKit used below, only the activation policy is
// in the fact sheet; the NSApplicationDelegate methods, NSMenu, NSMenuItem and the main menu
// are written from Apple's reference.
@implementation QuorvaneAppDelegate {
    std::unique_ptr<quorvane::AppState> _state;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    // Info.plist already says LSUIElement; saying it here too keeps an unbundled debug run
    // out of the Dock as well.
    [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
    [self installMainMenu];
    _state = std::make_unique<quorvane::AppState>();
    _state->lifecycle.didFinishLaunching();
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    if (_state) {
        _state->lifecycle.willTerminate();
    }
}

// Opening Quorvane again while it runs (from Finder or Spotlight) shows its settings: with
// the menu-bar item hidden or crowded out, that is the way back in.
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag {
    [self showSettings:sender];
    return NO;
}

// An accessory app shows no menu bar of its own, but the key equivalents of its main menu
// still work in its windows: without an Edit menu, ⌘C, ⌘V and ⌘A do nothing in the settings
// window's text fields.
- (void)installMainMenu {
    NSMenu* main = [[NSMenu alloc] initWithTitle:@""];
    NSMenu* application = [[NSMenu alloc] initWithTitle:@"Quorvane"];
    [application addItemWithTitle:quorvane::text(quorvane::MenuModel::kSettingsTitle)
                           action:@selector(showSettings:)
                    keyEquivalent:@","]
        .target = self;
    [application addItemWithTitle:@"Close Window"
                           action:@selector(performClose:)
                    keyEquivalent:@"w"];
    [application addItemWithTitle:quorvane::text(quorvane::MenuModel::kQuitTitle)
                           action:@selector(terminate:)
                    keyEquivalent:@"q"];
    NSMenu* edit = [[NSMenu alloc] initWithTitle:@"Edit"];
    [edit addItemWithTitle:@"Undo" action:@selector(undo:) keyEquivalent:@"z"];
    [edit addItemWithTitle:@"Redo" action:@selector(redo:) keyEquivalent:@"Z"];
    [edit addItem:[NSMenuItem separatorItem]];
    [edit addItemWithTitle:@"Cut" action:@selector(cut:) keyEquivalent:@"x"];
    [edit addItemWithTitle:@"Copy" action:@selector(copy:) keyEquivalent:@"c"];
    [edit addItemWithTitle:@"Paste" action:@selector(paste:) keyEquivalent:@"v"];
    [edit addItemWithTitle:@"Select All" action:@selector(selectAll:) keyEquivalent:@"a"];
    for (NSMenu* submenu in @[ application, edit ]) {
        NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:submenu.title
                                                      action:nil
                                               keyEquivalent:@""];
        item.submenu = submenu;
        [main addItem:item];
    }
    NSApp.mainMenu = main;
}

// Archives the app declares as documents, opened from Finder.
// unconfirmed: check on a Mac first (-application:openURLs: is written from Apple's reference).
- (void)application:(NSApplication*)application openURLs:(NSArray<NSURL*>*)urls {
    std::vector<std::string> paths;
    for (NSURL* url in urls) {
        if (url.isFileURL) {
            paths.push_back(quorvane::utf8String(url.path));
        }
    }
    quorvane::openDocuments(_state ? _state->lifecycle.registry() : nullptr, paths);
}

- (void)showSettings:(id)sender {
    if (_state) {
        _state->lifecycle.showSettings();
    }
}

@end

namespace quorvane {

void installAppDelegate() {
    // NSApplication holds its delegate weakly, so this reference owns it. It is deliberately
    // never released: quitting ends in exit() right after applicationWillTerminate: has
    // stopped every tool, and tearing the object graph down inside exit() would only add work
    // (and risk) to a process that is going away.
    static const CFTypeRef owner = CFBridgingRetain([[QuorvaneAppDelegate alloc] init]);
    [NSApplication sharedApplication].delegate = (__bridge QuorvaneAppDelegate*)owner;
}

}  // namespace quorvane
