#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"
#include "mac/CFRef.hpp"

// unconfirmed: check on a Mac first. +[NSScreen screens], +[NSScreen mainScreen], the frame and
// visibleFrame properties and +[NSEvent mouseLocation] are not in the fact sheet; NSBeep is.

namespace quorvane {

namespace {

Rect rectOf(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

Screen describe(NSScreen* screen) { return {rectOf(screen.frame), rectOf(screen.visibleFrame)}; }

// NSScreen, the mouse, the HUD's panel and the floating lists.
class MacScreens final : public Screens {
public:
    std::vector<Screen> screens() override {
        @autoreleasepool {
            std::vector<Screen> result;
            for (NSScreen* screen in [NSScreen screens]) {
                result.push_back(describe(screen));
            }
            return result;
        }
    }

    std::optional<Screen> mainScreen() override {
        @autoreleasepool {
            NSScreen* screen = [NSScreen mainScreen];
            return screen ? std::optional(describe(screen)) : std::nullopt;
        }
    }

    Point mouseLocation() override {
        // Screen coordinates with the origin at the bottom left, like the screens' frames.
        const NSPoint location = [NSEvent mouseLocation];
        return {location.x, location.y};
    }

    void beep() override { NSBeep(); }

    std::unique_ptr<Panel> makeFloatingPanel() override { return makeMacPanel(); }

    std::unique_ptr<ListPanel> makeListPanel(ListPanel::Handlers handlers) override {
        return makeMacListPanel(std::move(handlers));
    }

    std::unique_ptr<Overlay> makeOverlay() override { return makeMacOverlay(); }

    // ⚠ No documented interface moves the Dock. The Dock follows the pointer when it keeps pushing
    // against a display's bottom edge; this posts that push as a few mouse-moved events at the edge
    // whose vertical delta points down (CGEventCreateMouseEvent with kCGEventMouseMoved, the delta
    // in kCGMouseEventDeltaY, posted at the HID tap location). Whether the Dock counts synthesized
    // movement is not confirmed: check on a Mac first. The pointer itself stays where it is.
    bool summonDock(Point bottomEdge) override {
        constexpr int kPushes = 6;
        constexpr std::int64_t kPushDelta = 8;
        const CGPoint at = CGPointMake(bottomEdge.x, bottomEdge.y);
        for (int push = 0; push < kPushes; ++push) {
            const auto event = CFRef<CGEventRef>::adopt(
                CGEventCreateMouseEvent(nullptr, kCGEventMouseMoved, at, kCGMouseButtonLeft));
            if (!event) {
                return false;
            }
            CGEventSetIntegerValueField(event.get(), kCGMouseEventDeltaY, kPushDelta);
            CGEventPost(kCGHIDEventTap, event.get());
        }
        return true;
    }
};

}  // namespace

std::unique_ptr<Screens> makeMacScreens() { return std::make_unique<MacScreens>(); }

}  // namespace quorvane
