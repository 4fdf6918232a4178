#pragma once

#include <string>
#include <string_view>

#include "base/ColorRole.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

// The few view-building steps every Quorvane window and panel repeats. Controls run a block
// when used; their targets go into `keep`, which must live as long as the control.

NSColor* color(ColorRole role);
NSControlStateValue stateValue(bool on);

NSTextField* makeLabel(std::string_view utf8);
// Wraps at `width` points.
NSTextField* makeWrappingLabel(std::string_view utf8, CGFloat width);
NSTextField* makeSecondaryLabel(std::string_view utf8, CGFloat width);
// Empty when the symbol does not exist on this system.
NSImageView* makeSymbol(std::string_view systemImage, CGFloat pointSize);
NSImageView* makeSymbol(std::string_view systemImage, CGFloat pointSize, ColorRole tint);
// A symbol image described for VoiceOver; nil when the symbol does not exist on this system.
NSImage* makeSymbolImage(std::string_view systemImage, std::string_view description);
// The Finder's icon of a file or bundle, `size` points square.
NSImageView* makeFileIcon(std::string_view path, CGFloat size);

// Pins the view to one size, `width` by `height` points; answers the view.
NSView* fixSize(NSView* view, CGFloat width, CGFloat height);
// The frosted material of a popover behind a floating window's content, with rounded corners.
NSVisualEffectView* makeMaterialBackground(CGFloat cornerRadius);

// Stacks holding `views` in order.
NSStackView* makeColumn(CGFloat spacing, NSArray<NSView*>* views = nil);
NSStackView* makeRow(CGFloat spacing, NSArray<NSView*>* views = nil);
// Also empties `keep`, the targets of the controls among them, when given.
void removeArrangedViews(NSStackView* stack, NSMutableArray* keep = nil);
// A vertical scroller whose content starts at the top and is as wide as the visible area.
NSScrollView* makeScrollView(NSView* content, CGFloat inset);
void pinEdges(NSView* view, NSView* container, CGFloat inset);

NSButton* makeButton(std::string_view title, NSMutableArray* keep, void (^action)(void));
// Borderless; the description is read by VoiceOver and shown as the tool tip.
NSButton* makeSymbolButton(std::string_view systemImage, std::string_view description,
                           NSMutableArray* keep, void (^action)(void));
NSButton* makeCheckbox(std::string_view title, bool on, NSMutableArray* keep,
                       void (^changed)(bool on));
// Commits its text when the user presses Return or leaves the field, not on every keystroke.
NSTextField* makeCommittingField(std::string_view placeholder, CGFloat minimumWidth,
                                 NSMutableArray* keep, void (^commit)(const std::string& text));
// Text being typed is the user's: a field that is being edited keeps it.
void showUnlessEditing(NSTextField* field, std::string_view utf8);
// The warning triangle with `label` beside it, wrapping.
NSStackView* makeWarning(NSTextField* label);

// Runs the block on the main loop after the current event, so a view is never rebuilt from
// inside one of its own controls' actions.
void runSoon(void (^block)(void));

}  // namespace quorvane
