#pragma once

#include "mac/MacFrameworks.h"

namespace quorvane {
class FirstRunModel;
}

// The welcome window of the first launch. Closing it counts as done. The model must outlive
// it.
@interface QVFirstRunWindowController : NSWindowController <NSWindowDelegate>
- (instancetype)initWithModel:(quorvane::FirstRunModel&)model;
@end
