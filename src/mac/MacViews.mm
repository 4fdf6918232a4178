#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacViews.hpp"

#include "mac/MacStrings.hpp"
#include "ui/StyledText.hpp"

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
// NSImageSymbolConfiguration, NSImageView, NSStackView, NSScrollView, the layout anchors and
// dispatch_async on the main queue are written from Apple's reference.
namespace quorvane {

NSString* text(std::string_view utf8) {
    NSString* string = makeNSString(utf8);
    return string ? string : @"";
}

NSTextField* makeLabel(std::string_view utf8) { return [NSTextField labelWithString:text(utf8)]; }

NSTextField* makeHeading(std::string_view utf8, CGFloat size) {
    NSTextField* label = makeLabel(utf8);
    label.font = [NSFont boldSystemFontOfSize:size];
    return label;
}

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

NSTextField* makeStyledLabel(std::string_view utf8, CGFloat width) {
    NSTextField* label = makeWrappingLabel("", width);
    const CGFloat size = [NSFont systemFontSize];
    NSMutableAttributedString* styled = [[NSMutableAttributedString alloc] init];
    for (const auto& run : StyledText::parse(utf8)) {
        NSDictionary* attributes = @{
            NSFontAttributeName : run.bold ? [NSFont boldSystemFontOfSize:size]
                                           : [NSFont systemFontOfSize:size],
            NSForegroundColorAttributeName : [NSColor labelColor],
        };
        [styled appendAttributedString:[[NSAttributedString alloc] initWithString:text(run.text)
                                                                       attributes:attributes]];
    }
    label.attributedStringValue = styled;
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

namespace {

NSStackView* makeStack(NSUserInterfaceLayoutOrientation orientation, NSLayoutAttribute alignment,
                       CGFloat spacing) {
    NSStackView* stack = [NSStackView stackViewWithViews:@[]];
    stack.orientation = orientation;
    stack.alignment = alignment;
    stack.spacing = spacing;
    return stack;
}

}  // namespace

NSStackView* makeColumn(CGFloat spacing) {
    return makeStack(NSUserInterfaceLayoutOrientationVertical, NSLayoutAttributeLeading, spacing);
}

NSStackView* makeRow(CGFloat spacing) {
    return makeStack(NSUserInterfaceLayoutOrientationHorizontal, NSLayoutAttributeCenterY, spacing);
}

void removeArrangedViews(NSStackView* stack) {
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

void runSoon(void (^block)(void)) { dispatch_async(dispatch_get_main_queue(), block); }

}  // namespace quorvane
