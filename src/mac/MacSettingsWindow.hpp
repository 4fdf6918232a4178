#pragma once

#include "mac/MacFrameworks.h"

namespace quorvane {
class SettingsWindowModel;
}

// The settings window: a search field and the sidebar of tools on the left, the selected
// entry's header, permission cards and page on the right. The model must outlive it.
@interface QVSettingsWindowController
    : NSWindowController <NSTableViewDataSource, NSTableViewDelegate, NSWindowDelegate>
- (instancetype)initWithModel:(quorvane::SettingsWindowModel&)model;
@end
