#include "mac/MacActionTarget.hpp"

#include "base/CallIfSet.hpp"

// unconfirmed: check on a Mac first (NSControl's target and action properties are not in the
// fact sheet).
@implementation QVActionTarget {
    void (^_handler)(id sender);
}

+ (instancetype)bind:(NSControl*)control
                keep:(NSMutableArray*)keep
             handler:(void (^)(id sender))handler {
    QVActionTarget* target = [[QVActionTarget alloc] init];
    target->_handler = handler;
    control.target = target;
    control.action = @selector(perform:);
    [keep addObject:target];
    return target;
}

- (void)perform:(id)sender {
    // The handler may lead to this control's view being rebuilt, which releases this target
    // and its block while they run; the strong locals keep both alive until the call returns.
    QVActionTarget* keepAlive = self;
    void (^handler)(id) = _handler;
    quorvane::callIfSet(handler, sender);
    (void)keepAlive;
}

@end
