#include "mac/MacAppWindows.hpp"

#include "mac/MacFirstRunWindow.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacSettingsWindow.hpp"
#include "mac/MacViews.hpp"

namespace quorvane {

struct MacAppWindows::Controllers {
    QVSettingsWindowController* settings = nil;
    QVFirstRunWindowController* firstRun = nil;
};

MacAppWindows::MacAppWindows() : controllers_(std::make_unique<Controllers>()) {}

MacAppWindows::~MacAppWindows() = default;

namespace {

void bringToFront(NSWindowController* controller) {
    // unconfirmed: check on a Mac first (-showWindow: and -makeKeyAndOrderFront: are not in
    // the fact sheet). An accessory app is not active by itself, so its window would open
    // behind the others without the activation.
    [controller showWindow:nil];
    [controller.window makeKeyAndOrderFront:nil];
    [NSApp activate];
}

}  // namespace

void MacAppWindows::showSettings(SettingsWindowModel& model) {
    if (!controllers_->settings) {
        controllers_->settings = [[QVSettingsWindowController alloc] initWithModel:model];
    }
    bringToFront(controllers_->settings);
}

void MacAppWindows::showFirstRun(FirstRunModel& model) {
    if (!controllers_->firstRun) {
        controllers_->firstRun = [[QVFirstRunWindowController alloc] initWithModel:model];
    }
    bringToFront(controllers_->firstRun);
}

void MacAppWindows::closeFirstRun() {
    QVFirstRunWindowController* controller = controllers_->firstRun;
    controllers_->firstRun = nil;
    // This runs inside the window's own "Get Started" click: closing there would free the
    // window, its button and the button's target while the click is still on the stack. The
    // block keeps the controller alive and closes it on the next turn of the run loop.
    // unconfirmed: check on a Mac first (-[NSWindow close] is not in the fact sheet).
    runSoon(^{
      [controller.window close];
    });
}

}  // namespace quorvane
