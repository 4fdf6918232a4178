#pragma once

#include "app/PermissionCardSource.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

// One permission's card: its icons, explanation, steps, buttons and help line. The buttons
// act through `source`, which must outlive them; their targets go into `keep`, which must live
// as long as the card.
NSView* makePermissionCardView(const PermissionCard& card, PermissionCardSource& source,
                               NSMutableArray* keep, CGFloat width);

// The source's cards one above the other, with the notice of a failed button under them.
void fillPermissionCards(NSStackView* stack, PermissionCardSource& source, NSMutableArray* keep,
                         CGFloat width);

}  // namespace quorvane
