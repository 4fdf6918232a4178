#pragma once

#include "app/PermissionCard.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

using CardAction = void (^)(Permission permission, PermissionCard::Action action);

// One permission's card: its icons, explanation, steps, buttons and help line. The buttons'
// targets go into `keep`, which must live as long as the card.
NSView* makePermissionCardView(const PermissionCard& card, CardAction perform, NSMutableArray* keep,
                               CGFloat width);

// The cards one above the other, with the notice of a failed button under them.
void fillPermissionCards(NSStackView* stack, const std::vector<PermissionCard>& cards,
                         const std::string& notice, CardAction perform, NSMutableArray* keep,
                         CGFloat width);

}  // namespace quorvane
