#pragma once

#include <string_view>

#include "mac/MacFrameworks.h"

namespace quorvane {

// The few view-building steps every Quorvane window and panel repeats.

// AppKit refuses nil text, so text that is not UTF-8 shows as empty instead.
NSString* text(std::string_view utf8);

NSTextField* makeLabel(std::string_view utf8);
NSTextField* makeHeading(std::string_view utf8, CGFloat size);
// Wraps at `width` points.
NSTextField* makeWrappingLabel(std::string_view utf8, CGFloat width);
NSTextField* makeSecondaryLabel(std::string_view utf8, CGFloat width);
// **Double asterisks** mark bold parts.
NSTextField* makeStyledLabel(std::string_view utf8, CGFloat width);
// Empty when the symbol does not exist on this system.
NSImageView* makeSymbol(std::string_view systemImage, CGFloat pointSize);
// A symbol image described for VoiceOver; nil when the symbol does not exist on this system.
NSImage* makeSymbolImage(std::string_view systemImage, std::string_view description);

NSStackView* makeColumn(CGFloat spacing);
NSStackView* makeRow(CGFloat spacing);
void removeArrangedViews(NSStackView* stack);
// A vertical scroller whose content starts at the top and is as wide as the visible area.
NSScrollView* makeScrollView(NSView* content, CGFloat inset);
void pinEdges(NSView* view, NSView* container, CGFloat inset);

// Runs the block on the main loop after the current event, so a view is never rebuilt from
// inside one of its own controls' actions.
void runSoon(void (^block)(void));

}  // namespace quorvane
