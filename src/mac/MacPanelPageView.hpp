#pragma once

#include "mac/MacFrameworks.h"
#include "ui/PanelContent.hpp"

// A panel's page whose rows come and go: it builds its settings page again when the page's
// layout key changes, and tells the page when the pointer enters and leaves it.
@interface QVPanelPageView : NSView
- (instancetype)initWithPage:(quorvane::PanelContent::Page)page;
@end
