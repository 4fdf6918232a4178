#pragma once

#include "mac/MacFrameworks.h"

// Turns any number of change notices into one refresh on the main loop, after the current
// event. A view is then never rebuilt from inside one of its own controls' actions, and a
// burst of changes costs one rebuild.
@interface QVRefresher : NSObject
- (instancetype)initWithRefresh:(void (^)(void))refresh;
- (void)request;
@end
