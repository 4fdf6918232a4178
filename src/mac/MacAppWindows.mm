#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/MacFirstRunWindow.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacSettingsWindow.hpp"
#include "mac/MacViews.hpp"

namespace quorvane {

namespace {

void bringToFront(NSWindowController* controller) {
    // unconfirmed: check on a Mac first (-showWindow: and -makeKeyAndOrderFront: are not in
    // the fact sheet). An accessory app is not active by itself, so its window would open
    // behind the others without the activation.
    [controller showWindow:nil];
    [controller.window makeKeyAndOrderFront:nil];
    [NSApp activate];
}

// The settings and welcome windows, each made on first use. Main thread only.
class MacAppWindows final : public AppWindows {
public:
    void showSettings(SettingsWindowModel& model) override {
        if (!settings_) {
            settings_ = [[QVSettingsWindowController alloc] initWithModel:model];
        }
        bringToFront(settings_);
    }

    void showFirstRun(FirstRunModel& model) override {
        if (!firstRun_) {
            firstRun_ = [[QVFirstRunWindowController alloc] initWithModel:model];
        }
        bringToFront(firstRun_);
    }

    void closeFirstRun() override {
        QVFirstRunWindowController* controller = firstRun_;
        firstRun_ = nil;
        // This runs inside the window's own "Get Started" click: closing there would free the
        // window, its button and the button's target while the click is still on the stack. The
        // block keeps the controller alive and closes it on the next turn of the run loop.
        // unconfirmed: check on a Mac first (-[NSWindow close] is not in the fact sheet).
        runSoon(^{
          [controller.window close];
        });
    }

private:
    QVSettingsWindowController* settings_ = nil;
    QVFirstRunWindowController* firstRun_ = nil;
};

}  // namespace

std::unique_ptr<AppWindows> makeMacAppWindows() { return std::make_unique<MacAppWindows>(); }

}  // namespace quorvane
