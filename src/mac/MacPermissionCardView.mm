#include "mac/MacPermissionCardView.hpp"

#include "mac/MacViews.hpp"

// unconfirmed: check on a Mac first. NSBox (custom type, corner radius, colours), NSColor's
// system colours and contentTintColor are not in the fact sheet.
namespace quorvane {

NSView* makePermissionCardView(const PermissionCard& card, PermissionCardSource& source,
                               NSMutableArray* keep, CGFloat width) {
    const CGFloat inner = width - 32;
    NSStackView* title = makeRow(8, @[
        makeSymbol(PermissionCard::kIcon, 18, ColorRole::accent),
        makeHeading(card.title, 13),
        makeSymbol(card.stateIcon, 15, card.stateColor),
    ]);
    NSStackView* column = makeColumn(8, @[ title, makeWrappingLabel(card.explanation, inner) ]);

    if (card.showsSteps()) {
        for (const auto& step : card.steps) {
            [column addArrangedSubview:makeStyledLabel(step, inner)];
        }
        NSStackView* buttons = makeRow(8);
        const Permission permission = card.permission;
        PermissionCardSource* target = &source;
        for (const auto& button : card.buttons) {
            const PermissionCard::Action action = button.action;
            [buttons addArrangedSubview:makeButton(button.title, keep, ^{
                       target->performCardAction(permission, action);
                     })];
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

void fillPermissionCards(NSStackView* stack, PermissionCardSource& source, NSMutableArray* keep,
                         CGFloat width) {
    removeArrangedViews(stack, keep);
    for (const auto& card : source.cards()) {
        [stack addArrangedSubview:makePermissionCardView(card, source, keep, width)];
    }
    if (const std::string& notice = source.cardNotice(); !notice.empty()) {
        NSTextField* label = makeWrappingLabel(notice, width);
        label.textColor = color(ColorRole::red);
        [stack addArrangedSubview:label];
    }
}

}  // namespace quorvane
