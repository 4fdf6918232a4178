#include "mac/MacPorts.hpp"

#include "mac/MacFloatingWindow.hpp"
#include "mac/MacFrameworks.h"

// Notes, from Apple's NSWindow reference (check on a Mac first):
// - orderWindow:relativeTo: takes the other window's windowNumber; windowNumber is the window
//   server's number, the same one CGWindowListCopyWindowInfo reports as kCGWindowNumber, so
//   another application's window can be named. ⚠ Ordering relative to another app's window is
//   documented for window numbers in general, not confirmed for other processes' windows.
// - ignoresMouseEvents = YES makes the window transparent to clicks.
// - The shade stays at the normal level: the menu bar, the Dock and menus sit on higher levels
//   and are never covered.

namespace quorvane {

namespace {

// A borderless, click-through black NSWindow whose opacity is the shade.
class MacOverlay final : public Overlay {
public:
    MacOverlay() {
        window_ = makeFloatingWindow([NSWindow class], NSZeroRect, NSWindowStyleMaskBorderless,
                                     NSNormalWindowLevel, [NSColor blackColor]);
        makeClickThrough(window_);
        // On every Space, left in place by Mission Control, out of ⌘` cycling.
        window_.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces |
                                     NSWindowCollectionBehaviorStationary |
                                     NSWindowCollectionBehaviorIgnoresCycle;
    }
    MacOverlay(const MacOverlay&) = delete;
    MacOverlay& operator=(const MacOverlay&) = delete;

    ~MacOverlay() override { [window_ orderOut:nil]; }

    void setFrame(const Rect& frame) override {
        [window_ setFrame:NSMakeRect(frame.minX(), frame.minY(), frame.width(), frame.height())
                  display:YES];
    }

    void setAlpha(double alpha) override { window_.alphaValue = alpha; }

    void orderBelow(std::uint32_t windowNumber) override {
        [window_ orderWindow:NSWindowBelow relativeTo:static_cast<NSInteger>(windowNumber)];
    }

    void orderOut() override { [window_ orderOut:nil]; }

private:
    NSWindow* window_;
};

}  // namespace

std::unique_ptr<Overlay> makeMacOverlay() { return std::make_unique<MacOverlay>(); }

}  // namespace quorvane
