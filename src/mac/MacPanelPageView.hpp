#pragma once

#include "mac/MacFrameworks.h"
#include "ui/PanelContent.hpp"

// A panel's page: its settings page, built again when the page's layout key changes (rows that
// come and go), and told when the pointer enters and leaves it when the page asks.
@interface QVPanelPageView : NSView
- (instancetype)initWithPage:(quorvane::PanelContent::Page)page;
@end
