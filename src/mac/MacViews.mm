#include "mac/MacViews.hpp"

#include "mac/MacActionTarget.hpp"

// A scroll view's document view draws from the bottom unless it is flipped.
@interface QVFlippedView : NSView
@end

@implementation QVFlippedView
- (BOOL)isFlipped {
    return YES;
}
@end

// unconfirmed: check on a Mac first. Nothing in this file is in the fact sheet: NSTextField's
// label constructors and text properties, NSFont, NSColor, NSImage's symbol constructor and
// NSImageSymbolConfiguration, NSImageView, NSVisualEffectView, NSStackView, NSScrollView,
// NSButton's constructors and state, the text field's cell, the layout anchors and dispatch_async
// on the main queue are written from Apple's reference.
namespace quorvane {

NSColor* color(ColorRole role) {
    switch (role) {
        case ColorRole::label:
            return [NSColor labelColor];
        case ColorRole::secondaryLabel:
            return [NSColor secondaryLabelColor];
        case ColorRole::tertiaryLabel:
            return [NSColor tertiaryLabelColor];
        case ColorRole::accent:
            return [NSColor controlAccentColor];
        case ColorRole::green:
            return [NSColor systemGreenColor];
        case ColorRole::orange:
            return [NSColor systemOrangeColor];
        case ColorRole::red:
            return [NSColor systemRedColor];
    }
    return [NSColor labelColor];
}

NSControlStateValue stateValue(bool on) {
    return on ? NSControlStateValueOn : NSControlStateValueOff;
}

NSTextField* makeLabel(std::string_view utf8) { return [NSTextField labelWithString:text(utf8)]; }

NSTextField* makeWrappingLabel(std::string_view utf8, CGFloat width) {
    NSTextField* label = [NSTextField wrappingLabelWithString:text(utf8)];
    // Without a width a wrapping label in a stack view grows to one long line.
    label.preferredMaxLayoutWidth = width;
    return label;
}

NSTextField* makeSecondaryLabel(std::string_view utf8, CGFloat width) {
    NSTextField* label = makeWrappingLabel(utf8, width);
    label.font = [NSFont systemFontOfSize:[NSFont smallSystemFontSize]];
    label.textColor = [NSColor secondaryLabelColor];
    return label;
}

NSImage* makeSymbolImage(std::string_view systemImage, std::string_view description) {
    return [NSImage imageWithSystemSymbolName:text(systemImage)
                     accessibilityDescription:text(description)];
}

NSImageView* makeSymbol(std::string_view systemImage, CGFloat pointSize) {
    NSImage* image = [NSImage imageWithSystemSymbolName:text(systemImage)
                               accessibilityDescription:nil];
    NSImageSymbolConfiguration* configuration =
        [NSImageSymbolConfiguration configurationWithPointSize:pointSize
                                                        weight:NSFontWeightRegular];
    NSImageView* view = [[NSImageView alloc] initWithFrame:NSZeroRect];
    view.image = image ? [image imageWithSymbolConfiguration:configuration] : nil;
    return view;
}

NSImageView* makeFileIcon(std::string_view path, CGFloat size) {
    // unconfirmed: check on a Mac first (-[NSWorkspace iconForFile:] is from Apple's reference,
    // not the fact sheet); it answers a generic icon for a path that is gone.
    NSImage* icon = [[NSWorkspace sharedWorkspace] iconForFile:text(path)];
    icon.size = NSMakeSize(size, size);
    NSImageView* view = [NSImageView imageViewWithImage:icon];
    fixSize(view, size, size);
    return view;
}

NSImageView* makeSymbol(std::string_view systemImage, CGFloat pointSize, ColorRole tint) {
    NSImageView* view = makeSymbol(systemImage, pointSize);
    view.contentTintColor = color(tint);
    return view;
}

NSView* fixSize(NSView* view, CGFloat width, CGFloat height) {
    view.translatesAutoresizingMaskIntoConstraints = NO;
    [view.widthAnchor constraintEqualToConstant:width].active = YES;
    [view.heightAnchor constraintEqualToConstant:height].active = YES;
    return view;
}

NSVisualEffectView* makeMaterialBackground(CGFloat cornerRadius) {
    NSVisualEffectView* background = [[NSVisualEffectView alloc] init];
    background.material = NSVisualEffectMaterialPopover;
    background.blendingMode = NSVisualEffectBlendingModeBehindWindow;
    background.state = NSVisualEffectStateActive;
    background.wantsLayer = YES;
    background.layer.cornerRadius = cornerRadius;
    background.layer.masksToBounds = YES;
    return background;
}

namespace {

NSStackView* makeStack(NSUserInterfaceLayoutOrientation orientation, NSLayoutAttribute alignment,
                       CGFloat spacing, NSArray<NSView*>* views) {
    NSStackView* stack = [NSStackView stackViewWithViews:views ? views : @[]];
    stack.orientation = orientation;
    stack.alignment = alignment;
    stack.spacing = spacing;
    return stack;
}

}  // namespace

NSStackView* makeColumn(CGFloat spacing, NSArray<NSView*>* views) {
    return makeStack(NSUserInterfaceLayoutOrientationVertical, NSLayoutAttributeLeading, spacing,
                     views);
}

NSStackView* makeRow(CGFloat spacing, NSArray<NSView*>* views) {
    return makeStack(NSUserInterfaceLayoutOrientationHorizontal, NSLayoutAttributeCenterY, spacing,
                     views);
}

void removeArrangedViews(NSStackView* stack, NSMutableArray* keep) {
    [keep removeAllObjects];
    // Removing a view from its superview also takes it out of the arranged views.
    for (NSView* view in [stack.arrangedSubviews copy]) {
        [view removeFromSuperview];
    }
}

void pinEdges(NSView* view, NSView* container, CGFloat inset) {
    view.translatesAutoresizingMaskIntoConstraints = NO;
    [NSLayoutConstraint activateConstraints:@[
        [view.topAnchor constraintEqualToAnchor:container.topAnchor constant:inset],
        [view.bottomAnchor constraintEqualToAnchor:container.bottomAnchor constant:-inset],
        [view.leadingAnchor constraintEqualToAnchor:container.leadingAnchor constant:inset],
        [view.trailingAnchor constraintEqualToAnchor:container.trailingAnchor constant:-inset],
    ]];
}

NSScrollView* makeScrollView(NSView* content, CGFloat inset) {
    NSScrollView* scroll = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    scroll.hasVerticalScroller = YES;
    scroll.drawsBackground = NO;
    scroll.translatesAutoresizingMaskIntoConstraints = NO;
    QVFlippedView* document = [[QVFlippedView alloc] initWithFrame:NSZeroRect];
    [document addSubview:content];
    pinEdges(content, document, inset);
    document.translatesAutoresizingMaskIntoConstraints = NO;
    scroll.documentView = document;
    NSClipView* clip = scroll.contentView;
    [NSLayoutConstraint activateConstraints:@[
        [document.topAnchor constraintEqualToAnchor:clip.topAnchor],
        [document.leadingAnchor constraintEqualToAnchor:clip.leadingAnchor],
        [document.trailingAnchor constraintEqualToAnchor:clip.trailingAnchor],
    ]];
    return scroll;
}

NSButton* makeButton(std::string_view title, NSMutableArray* keep, void (^action)(void)) {
    NSButton* button = [NSButton buttonWithTitle:text(title) target:nil action:nil];
    [QVActionTarget bind:button
                    keep:keep
                 handler:^(id) {
                   action();
                 }];
    return button;
}

NSButton* makeSymbolButton(std::string_view systemImage, std::string_view description,
                           NSMutableArray* keep, void (^action)(void)) {
    NSButton* button = [NSButton buttonWithImage:makeSymbolImage(systemImage, description)
                                          target:nil
                                          action:nil];
    button.bordered = NO;
    button.toolTip = text(description);
    [QVActionTarget bind:button
                    keep:keep
                 handler:^(id) {
                   action();
                 }];
    return button;
}

NSButton* makeCheckbox(std::string_view title, bool on, NSMutableArray* keep,
                       void (^changed)(bool on)) {
    NSButton* box = [NSButton checkboxWithTitle:text(title) target:nil action:nil];
    box.state = stateValue(on);
    [QVActionTarget bind:box
                    keep:keep
                 handler:^(id sender) {
                   changed(static_cast<NSButton*>(sender).state == NSControlStateValueOn);
                 }];
    return box;
}

NSTextField* makeCommittingField(std::string_view placeholder, CGFloat minimumWidth,
                                 NSMutableArray* keep, void (^commit)(const std::string& text)) {
    NSTextField* field = [NSTextField textFieldWithString:@""];
    field.placeholderString = text(placeholder);
    field.cell.sendsActionOnEndEditing = YES;
    [field.widthAnchor constraintGreaterThanOrEqualToConstant:minimumWidth].active = YES;
    [QVActionTarget bind:field
                    keep:keep
                 handler:^(id sender) {
                   commit(utf8String(static_cast<NSTextField*>(sender).stringValue));
                 }];
    return field;
}

void showUnlessEditing(NSTextField* field, std::string_view utf8) {
    if (field.currentEditor == nil) {
        field.stringValue = text(utf8);
    }
}

NSStackView* makeWarning(NSTextField* label) {
    NSStackView* row = makeRow(6, @[
        makeSymbol("exclamationmark.triangle.fill", 13, ColorRole::orange),
        label,
    ]);
    row.alignment = NSLayoutAttributeTop;
    return row;
}

void runSoon(void (^block)(void)) { dispatch_async(dispatch_get_main_queue(), block); }

}  // namespace quorvane
