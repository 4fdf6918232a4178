#pragma once

#include "mac/MacFrameworks.h"

namespace quorvane {

// A window of `windowClass` (NSWindow, NSPanel or a subclass of either) that draws nothing of
// its own: see-through wherever its content and `background` leave it, at `level` (an
// NSWindowLevel), and kept when closed so it can be shown again. `style` adds to borderless (a
// non-activating panel). The notice card, the shade and the floating list are made this way; the
// area selection of a screen capture can be too.
__kindof NSWindow* makeFloatingWindow(Class windowClass, NSRect frame, NSWindowStyleMask style,
                                      NSInteger level, NSColor* background);

// For a window that only shows something: clicks go through it to the windows below, and it
// casts no shadow on them.
void makeClickThrough(NSWindow* window);

}  // namespace quorvane
