#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacPermissionCardView.hpp"

#include "mac/MacActionTarget.hpp"
#include "mac/MacViews.hpp"

// unconfirmed: check on a Mac first. NSBox (custom type, corner radius, colours), NSColor's
// system colours, contentTintColor and NSButton's key equivalent are not in the fact sheet.
namespace quorvane {

namespace {

NSColor* stateColor(PermissionCard::State state) {
    switch (state) {
        case PermissionCard::State::granted:
            return [NSColor systemGreenColor];
        case PermissionCard::State::missing:
            return [NSColor systemOrangeColor];
        case PermissionCard::State::untestable:
            return [NSColor secondaryLabelColor];
    }
    return [NSColor secondaryLabelColor];
}

}  // namespace

NSView* makePermissionCardView(const PermissionCard& card, CardAction perform, NSMutableArray* keep,
                               CGFloat width) {
    const CGFloat inner = width - 32;
    NSStackView* column = makeColumn(8);

    NSStackView* title = makeRow(8);
    NSImageView* icon = makeSymbol(PermissionCard::kIcon, 18);
    icon.contentTintColor = [NSColor controlAccentColor];
    NSImageView* state = makeSymbol(card.stateIcon, 15);
    state.contentTintColor = stateColor(card.state);
    [title addArrangedSubview:icon];
    [title addArrangedSubview:makeHeading(card.title, 13)];
    [title addArrangedSubview:state];
    [column addArrangedSubview:title];
    [column addArrangedSubview:makeWrappingLabel(card.explanation, inner)];

    if (card.showsSteps()) {
        for (const auto& step : card.steps) {
            [column addArrangedSubview:makeStyledLabel(step, inner)];
        }
        NSStackView* buttons = makeRow(8);
        const Permission permission = card.permission;
        for (const auto& button : card.buttons) {
            NSButton* control = [NSButton buttonWithTitle:text(button.title) target:nil action:nil];
            const PermissionCard::Action action = button.action;
            [QVActionTarget bind:control
                            keep:keep
                         handler:^(id) {
                           perform(permission, action);
                         }];
            [buttons addArrangedSubview:control];
        }
        [column addArrangedSubview:buttons];
        [column addArrangedSubview:makeSecondaryLabel(PermissionCard::kHelp, inner)];
    }

    NSBox* box = [[NSBox alloc] initWithFrame:NSZeroRect];
    box.boxType = NSBoxCustom;
    box.cornerRadius = 8;
    box.borderColor = [NSColor separatorColor];
    box.fillColor = [NSColor controlBackgroundColor];
    box.titlePosition = NSNoTitle;
    [box.contentView addSubview:column];
    pinEdges(column, box.contentView, 12);
    box.translatesAutoresizingMaskIntoConstraints = NO;
    [box.widthAnchor constraintEqualToConstant:width].active = YES;
    return box;
}

void fillPermissionCards(NSStackView* stack, const std::vector<PermissionCard>& cards,
                         const std::string& notice, CardAction perform, NSMutableArray* keep,
                         CGFloat width) {
    removeArrangedViews(stack);
    [keep removeAllObjects];
    for (const auto& card : cards) {
        [stack addArrangedSubview:makePermissionCardView(card, perform, keep, width)];
    }
    if (!notice.empty()) {
        NSTextField* label = makeWrappingLabel(notice, width);
        label.textColor = [NSColor systemRedColor];
        [stack addArrangedSubview:label];
    }
}

}  // namespace quorvane
