#include "mac/MacViewNode.hpp"

#include <functional>

#include "base/CallIfSet.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacViews.hpp"
#include "ui/StyledText.hpp"

// unconfirmed: check on a Mac first. NSSwitch, NSBox (custom and separator types, corner
// radius, colours), NSButton's image position, push-on-push-off type, bordered flag, key
// equivalents and tool tips, NSFont and attributed strings, NSImage from a CGImage, image
// scaling, compression resistance and layer colours are written from Apple's reference, not
// from the fact sheet.
namespace quorvane {

namespace {

using Kind = ViewNode::Kind;

NSTextField* makeHeading(std::string_view utf8, CGFloat size) {
    NSTextField* label = makeLabel(utf8);
    label.font = [NSFont boldSystemFontOfSize:size];
    return label;
}

// **Double asterisks** mark bold parts.
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

void addChildren(NSStackView* stack, const ViewNode& node, NSMutableArray* keep) {
    stack.spacing = node.size;
    for (const ViewNode& child : node.children) {
        [stack addArrangedSubview:makeView(child, keep)];
    }
}

// A label's own colour and truncation, where the node asks for them.
NSTextField* shaped(NSTextField* label, const ViewNode& node) {
    if (node.color) {
        label.textColor = color(*node.color);
    }
    if (node.truncates) {
        label.lineBreakMode = NSLineBreakByTruncatingTail;
        // Otherwise a long text keeps its width and pushes its neighbours out of the row.
        [label setContentCompressionResistancePriority:NSLayoutPriorityDefaultLow
                                        forOrientation:NSLayoutConstraintOrientationHorizontal];
    }
    return label;
}

NSTextField* label(const ViewNode& node) {
    NSTextField* made = makeLabel(node.text);
    if (node.size > 0) {
        made.font = node.monospacedDigits
                        ? [NSFont monospacedDigitSystemFontOfSize:node.size
                                                           weight:NSFontWeightRegular]
                        : [NSFont systemFontOfSize:node.size];
    }
    if (node.width > 0) {
        [made.widthAnchor constraintEqualToConstant:node.width].active = YES;
    }
    return shaped(made, node);
}

// The tint and rounded corners of a highlighted row, with room at its sides.
void highlight(NSStackView* row, double opacity) {
    row.edgeInsets = NSEdgeInsetsMake(0, 6, 0, 6);
    row.wantsLayer = YES;
    row.layer.cornerRadius = 6;
    row.layer.backgroundColor = [color(ColorRole::accent) colorWithAlphaComponent:opacity].CGColor;
}

NSView* picture(const ViewNode& node) {
    NSImageView* view = [[NSImageView alloc] initWithFrame:NSZeroRect];
    // A thumbnail holds a CGImage. nil for a symbol this system lacks, which leaves the space.
    view.image = node.image ? [[NSImage alloc]
                                  initWithCGImage:static_cast<CGImageRef>(
                                                      const_cast<void*>(node.image->image.get()))
                                             size:NSZeroSize]
                            : makeSymbolImage(node.symbol, node.text);
    view.imageScaling = NSImageScaleProportionallyUpOrDown;
    return fixSize(view, node.size, node.size);
}

// unconfirmed: check on a Mac first (-[NSWorkspace URLForApplicationWithBundleIdentifier:] and
// -[NSFileManager displayNameAtPath:] are from Apple's reference). An app that is not found
// shows its bundle identifier alone.
NSView* appBadge(const ViewNode& node) {
    NSURL* url =
        [[NSWorkspace sharedWorkspace] URLForApplicationWithBundleIdentifier:text(node.text)];
    NSStackView* badge = makeRow(4);
    if (url != nil) {
        [badge addArrangedSubview:makeFileIcon(utf8String(url.path), 14)];
    }
    NSString* name =
        url != nil ? [[NSFileManager defaultManager] displayNameAtPath:url.path] : text(node.text);
    NSTextField* label = makeLabel(utf8String(name));
    label.font = [NSFont systemFontOfSize:11];
    label.textColor = color(ColorRole::secondaryLabel);
    [badge addArrangedSubview:label];
    return badge;
}

NSButton* button(const ViewNode& node, NSMutableArray* keep) {
    const std::function<void()> action = node.action;
    void (^act)(void) = ^{
      callIfSet(action);
    };
    // Taking the button away inside its own action would free it and its target while the
    // click still runs them.
    void (^later)(void) = ^{
      runSoon(act);
    };
    NSButton* made = makeButton(node.text, keep, node.actsLater ? later : act);
    made.bordered = node.isBordered;
    made.keyEquivalent = text(node.keyEquivalent);
    if (node.withCommand) {
        made.keyEquivalentModifierMask = NSEventModifierFlagCommand;
    }
    made.toolTip = node.toolTip.empty() ? nil : text(node.toolTip);
    return made;
}

NSView* tile(const ViewNode& node, NSMutableArray* keep) {
    NSButton* made = button(node, keep);
    // nil for a symbol this system lacks, which leaves the title alone. The title already says
    // what the tile is, so the image needs no description of its own.
    made.image = [NSImage imageWithSystemSymbolName:text(node.symbol) accessibilityDescription:nil];
    made.imagePosition = NSImageAbove;
    [made setButtonType:NSButtonTypePushOnPushOff];
    made.state = stateValue(node.isOn);
    return fixSize(made, node.width, node.height);
}

NSView* toggleSwitch(const ViewNode& node, NSMutableArray* keep) {
    NSSwitch* made = [[NSSwitch alloc] initWithFrame:NSZeroRect];
    made.state = stateValue(node.isOn);
    made.enabled = node.isEnabled;
    const std::function<void(bool)> toggled = node.toggled;
    [QVActionTarget
           bind:made
           keep:keep
        handler:^(id sender) {
          callIfSet(toggled, static_cast<NSSwitch*>(sender).state == NSControlStateValueOn);
        }];
    return made;
}

NSView* card(const ViewNode& node, NSMutableArray* keep) {
    NSBox* box = [[NSBox alloc] initWithFrame:NSZeroRect];
    box.boxType = NSBoxCustom;
    box.cornerRadius = 8;
    box.borderColor = [NSColor separatorColor];
    box.fillColor = [NSColor controlBackgroundColor];
    box.titlePosition = NSNoTitle;
    for (const ViewNode& child : node.children) {
        NSView* content = makeView(child, keep);
        [box.contentView addSubview:content];
        pinEdges(content, box.contentView, 12);
    }
    box.translatesAutoresizingMaskIntoConstraints = NO;
    [box.widthAnchor constraintEqualToConstant:node.width].active = YES;
    return box;
}

NSView* separator(const ViewNode& node) {
    NSBox* line = [[NSBox alloc] initWithFrame:NSZeroRect];
    line.boxType = NSBoxSeparator;
    [line.widthAnchor constraintEqualToConstant:node.width].active = YES;
    return line;
}

}  // namespace

NSView* makeView(const ViewNode& node, NSMutableArray* keep) {
    switch (node.kind) {
        case Kind::column: {
            NSStackView* column = makeColumn(node.size);
            addChildren(column, node, keep);
            return column;
        }
        case Kind::row: {
            NSStackView* row = makeRow(node.size);
            row.alignment = node.alignsTop ? NSLayoutAttributeTop : NSLayoutAttributeCenterY;
            if (node.highlight) {
                highlight(row, *node.highlight);
            }
            addChildren(row, node, keep);
            return row;
        }
        case Kind::label:
            return label(node);
        case Kind::heading:
            return shaped(makeHeading(node.text, node.size), node);
        case Kind::wrappingLabel:
            return shaped(makeWrappingLabel(node.text, node.width), node);
        case Kind::secondaryLabel:
            return shaped(makeSecondaryLabel(node.text, node.width), node);
        case Kind::styledLabel:
            return shaped(makeStyledLabel(node.text, node.width), node);
        case Kind::symbol:
            return node.color ? makeSymbol(node.symbol, node.size, *node.color)
                              : makeSymbol(node.symbol, node.size);
        case Kind::fileIcon:
            return makeFileIcon(node.text, node.size);
        case Kind::picture:
            return picture(node);
        case Kind::appBadge:
            return appBadge(node);
        case Kind::button:
            return button(node, keep);
        case Kind::checkbox: {
            const std::function<void(bool)> toggled = node.toggled;
            return makeCheckbox(node.text, node.isOn, keep, ^(bool on) {
              callIfSet(toggled, on);
            });
        }
        case Kind::toggleSwitch:
            return toggleSwitch(node, keep);
        case Kind::tile:
            return tile(node, keep);
        case Kind::card:
            return card(node, keep);
        case Kind::separator:
            return separator(node);
    }
    return [[NSView alloc] initWithFrame:NSZeroRect];
}

void fillStack(NSStackView* stack, const ViewNode& node, NSMutableArray* keep) {
    removeArrangedViews(stack, keep);
    addChildren(stack, node, keep);
}

}  // namespace quorvane
