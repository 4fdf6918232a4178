#pragma once

#include "mac/MacFrameworks.h"

namespace quorvane {
class MenuModel;
}

// Quorvane's own menu as a popover: the control grid, then "Settings…" and "Quit Quorvane".
// The model must outlive the view.
@interface QVMenuPanelView : NSStackView
- (instancetype)initWithModel:(quorvane::MenuModel&)model;
@end
