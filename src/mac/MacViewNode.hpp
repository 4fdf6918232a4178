#pragma once

#include "mac/MacFrameworks.h"
#include "ui/ViewNode.hpp"

namespace quorvane {

// Draws a view node with AppKit as it stands. Controls' targets go into `keep`, which must live
// as long as the views; so must whatever the node's actions act on.
NSView* makeView(const ViewNode& node, NSMutableArray* keep);

// Puts a column or row node's children into `stack` in place of what it held, at the node's
// spacing; empties `keep` first.
void fillStack(NSStackView* stack, const ViewNode& node, NSMutableArray* keep);

}  // namespace quorvane
