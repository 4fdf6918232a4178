#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/AppDelegate.hpp"

#include <cstddef>
#include <memory>

#include "app/PermissionCenter.hpp"
#include "app/ToolCatalog.hpp"
#include "app/ToolRegistry.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacNotificationBus.hpp"
#include "mac/MacPermissionProbe.hpp"
#include "mac/MacPreferences.hpp"
#include "mac/MacScheduler.hpp"
#include "mac/MacStrings.hpp"
#include "mac/MacWorkspace.hpp"
#include "platform/Platform.hpp"
#include "input/InputServices.hpp"
#include "mac/MacAccessibility.hpp"
#include "mac/MacEventMonitors.hpp"
#include "mac/MacEventSystem.hpp"
#include "mac/MacHotKeySystem.hpp"
#include "mac/MacKeyboardLayout.hpp"
#include "mac/MacScreens.hpp"
#include "mac/MacWindowList.hpp"

namespace quorvane {

// Everything the running app is made of, in construction order: the ports, then the
// permission centre (so the permissions have been read once before any tool exists), then the
// tools and the registry that owns them. Members are destroyed in reverse, so each outlives its
// users.
struct AppState {
    MacPreferences preferences;
    MacScheduler scheduler;
    MacPermissionProbe permissionProbe;
    MacWorkspace workspace;
    MacNotificationBus notifications{MacNotificationBus::Mode::inApplication};
    MacEventSystem events;
    MacHotKeySystem hotKeys;
    MacAccessibility accessibility;
    MacEventMonitors eventMonitors;
    MacScreens screens;
    InputServices input{hotKeys, screens, scheduler};
    MacKeyboardLayout keyboardLayout;
    MacWindowList windowList;
    Platform platform{preferences, scheduler,      permissionProbe, workspace,     notifications,
                      events,      hotKeys,        accessibility,   eventMonitors, screens,
                      input,       keyboardLayout, windowList};
    PermissionCenter permissionCenter{permissionProbe, scheduler, workspace};
    ToolRegistry registry{ToolCatalog::makeTools(platform), permissionCenter, preferences,
                          notifications};
};

}  // namespace quorvane

@interface QuorvaneAppDelegate : NSObject <NSApplicationDelegate, NSMenuDelegate>
@end

// unconfirmed: check on a Mac first. Of the AppKit used below, only the status item and the
// activation policy are in the fact sheet; the NSApplicationDelegate and NSMenuDelegate
// methods, NSMenu, NSMenuItem and NSControlStateValueOn are written from Apple's reference.
@implementation QuorvaneAppDelegate {
    std::unique_ptr<quorvane::AppState> _state;
    // The status bar does not retain its items; this reference keeps Quorvane in the menu bar.
    NSStatusItem* _statusItem;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    (void)notification;
    // Info.plist already says LSUIElement; saying it here too keeps an unbundled debug run
    // out of the Dock as well.
    [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];

    _state = std::make_unique<quorvane::AppState>();
    quorvane::ToolRegistry* registry = &_state->registry;
    // Until the settings window exists there is nowhere to take the user: a tool that needs
    // setting up stays switched on and waits.
    registry->onNeedsSetup = [](quorvane::Tool&) {};
    // A raw pointer is enough: the delegate owns the centre and the registry together and
    // outlives both, and the centre only calls back from its poll timer on the run loop, never
    // while they are being torn down.
    _state->permissionCenter.onChange = [registry] { registry->reconcile(); };
    registry->reconcile();

    [self installStatusItem];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    (void)notification;
    if (_state) {
        _state->registry.stopAll();
    }
}

- (void)installStatusItem {
    _statusItem = [[NSStatusBar systemStatusBar] statusItemWithLength:NSVariableStatusItemLength];
    // unconfirmed: check on a Mac first (+[NSImage imageWithSystemSymbolName:
    // accessibilityDescription:] and the "switch.2" symbol are not in the fact sheet). It gives
    // nil for an unknown symbol, hence the text fallback.
    NSImage* image = [NSImage imageWithSystemSymbolName:@"switch.2"
                               accessibilityDescription:@"Quorvane"];
    NSStatusBarButton* button = _statusItem.button;
    if (image) {
        // A template image follows the menu bar's light and dark appearance. (The property is
        // named "template", a C++ keyword, so it is set through its method.)
        [image setTemplate:YES];
        button.image = image;
    } else {
        button.title = @"Quorvane";
    }

    NSMenu* menu = [[NSMenu alloc] initWithTitle:@"Quorvane"];
    // Automatic enabling would ignore each item's own enabled flag.
    menu.autoenablesItems = NO;
    menu.delegate = self;
    _statusItem.menu = menu;
}

// Rebuilt every time the menu opens, so it always shows the registry as it is now.
- (void)menuNeedsUpdate:(NSMenu*)menu {
    [menu removeAllItems];
    if (_state) {
        const quorvane::ToolRegistry& registry = _state->registry;
        const auto& tools = registry.tools();
        for (std::size_t index = 0; index < tools.size(); ++index) {
            const quorvane::Tool& tool = *tools[index];
            NSString* title = quorvane::makeNSString(tool.name());
            NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:(title ? title : @"")
                                                          action:@selector(toggleTool:)
                                                   keyEquivalent:@""];
            item.target = self;
            // The tag carries the tool's position in the registry back to toggleTool:.
            item.tag = static_cast<NSInteger>(index);
            item.state = registry.enabledIDs().contains(tool.id()) ? NSControlStateValueOn
                                                                   : NSControlStateValueOff;
            item.enabled = tool.isAvailable();
            [menu addItem:item];
        }
        [menu addItem:[NSMenuItem separatorItem]];
    }
    // ⌘Q: a one-letter key equivalent carries the Command modifier by default.
    NSMenuItem* quit = [[NSMenuItem alloc] initWithTitle:@"Quit Quorvane"
                                                  action:@selector(terminate:)
                                           keyEquivalent:@"q"];
    quit.target = NSApp;
    [menu addItem:quit];
}

- (void)toggleTool:(NSMenuItem*)sender {
    if (!_state) {
        return;
    }
    quorvane::ToolRegistry& registry = _state->registry;
    const NSInteger index = sender.tag;
    if (index < 0 || static_cast<std::size_t>(index) >= registry.tools().size()) {
        return;
    }
    quorvane::Tool& tool = *registry.tools()[static_cast<std::size_t>(index)];
    if (!tool.isAvailable()) {
        return;
    }
    registry.setEnabled(!registry.enabledIDs().contains(tool.id()), tool, true);
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
