#include "mac/MacScreens.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacListPanel.hpp"
#include "mac/MacPanel.hpp"

// unconfirmed: check on a Mac first. +[NSScreen screens], +[NSScreen mainScreen], the frame and
// visibleFrame properties and +[NSEvent mouseLocation] are not in the fact sheet; NSBeep is.

namespace quorvane {

namespace {

Rect rectOf(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

Screen describe(NSScreen* screen) { return {rectOf(screen.frame), rectOf(screen.visibleFrame)}; }

}  // namespace

std::vector<Screen> MacScreens::screens() {
    @autoreleasepool {
        std::vector<Screen> result;
        for (NSScreen* screen in [NSScreen screens]) {
            result.push_back(describe(screen));
        }
        return result;
    }
}

std::optional<Screen> MacScreens::mainScreen() {
    @autoreleasepool {
        NSScreen* screen = [NSScreen mainScreen];
        return screen ? std::optional(describe(screen)) : std::nullopt;
    }
}

Point MacScreens::mouseLocation() {
    // Screen coordinates with the origin at the bottom left, like the screens' frames.
    const NSPoint location = [NSEvent mouseLocation];
    return {location.x, location.y};
}

void MacScreens::beep() { NSBeep(); }

std::unique_ptr<Panel> MacScreens::makeFloatingPanel() { return std::make_unique<MacPanel>(); }

std::unique_ptr<ListPanel> MacScreens::makeListPanel(ListPanel::Handlers handlers) {
    return std::make_unique<MacListPanel>(std::move(handlers));
}

}  // namespace quorvane
