#include "ui/PermissionCardsView.hpp"

#include <utility>

namespace quorvane {

namespace {

// Text wraps short of the card's edges: the card's padding on both sides, and its border.
constexpr double kTextInset = 32;

ViewNode cardView(const PermissionCard& card, PermissionCardSource& source, double width) {
    const double inner = width - kTextInset;
    ViewNode content = ViewNode::column(
        8, {ViewNode::row(
                8, {ViewNode::symbolImage(PermissionCard::kIcon, 18).colored(ColorRole::accent),
                    ViewNode::heading(card.title, 13),
                    ViewNode::symbolImage(card.stateIcon, 15).colored(card.stateColor)}),
            ViewNode::wrappingLabel(card.explanation, inner)});
    if (card.showsSteps()) {
        for (const auto& step : card.steps) {
            content.children.push_back(ViewNode::styledLabel(step, inner));
        }
        ViewNode buttons = ViewNode::row(8);
        for (const auto& button : card.buttons) {
            buttons.children.push_back(ViewNode::button(
                button.title, [&source, permission = card.permission, action = button.action] {
                    source.performCardAction(permission, action);
                }));
        }
        content.children.push_back(std::move(buttons));
        content.children.push_back(ViewNode::secondaryLabel(PermissionCard::kHelp, inner));
    }
    return ViewNode::card(width, std::move(content));
}

}  // namespace

ViewNode permissionCardsView(PermissionCardSource& source, double width) {
    ViewNode column = ViewNode::column(12);
    for (const auto& card : source.cards()) {
        column.children.push_back(cardView(card, source, width));
    }
    if (const std::string& notice = source.cardNotice(); !notice.empty()) {
        column.children.push_back(ViewNode::wrappingLabel(notice, width).colored(ColorRole::red));
    }
    return column;
}

}  // namespace quorvane
