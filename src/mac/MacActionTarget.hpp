#pragma once

#include "mac/MacFrameworks.h"

// The target of a control whose action is a block. Controls hold their target weakly, so the
// view that makes one keeps it (in `keep`) for as long as the control lives.
@interface QVActionTarget : NSObject
+ (instancetype)bind:(NSControl*)control
                keep:(NSMutableArray*)keep
             handler:(void (^)(id sender))handler;
- (void)perform:(id)sender;
@end
