#pragma once

#include "mac/MacFrameworks.h"

// unconfirmed: check on a Mac first. Of the AppKit below only the window's initializer, its
// style masks, backing and window levels are in the fact sheet; opaque, backgroundColor,
// releasedWhenClosed, hidesOnDeactivate, hasShadow and ignoresMouseEvents were written from
// Apple's reference.
namespace quorvane {

// A borderless window of `windowClass` (an NSWindow or NSPanel class), see-through where its
// content and `background` leave it, at `level` (an NSWindowLevel), kept when closed.
inline __kindof NSWindow* makeFloatingWindow(Class windowClass, NSRect frame,
                                             NSWindowStyleMask style, NSInteger level,
                                             NSColor* background) {
    NSWindow* window = [[windowClass alloc] initWithContentRect:frame
                                                      styleMask:NSWindowStyleMaskBorderless | style
                                                        backing:NSBackingStoreBuffered
                                                          defer:NO];
    window.opaque = NO;
    window.backgroundColor = background;
    window.level = level;
    window.releasedWhenClosed = NO;
    // A panel hides when its app deactivates by default; Quorvane is an accessory app that is
    // almost never active, so a panel would vanish at once or never show.
    window.hidesOnDeactivate = NO;
    return window;
}

// For a window that only shows something: clicks go through it to the windows below, and it
// casts no shadow on them.
inline void makeClickThrough(NSWindow* window) {
    window.hasShadow = NO;
    window.ignoresMouseEvents = YES;
}

}  // namespace quorvane
