#pragma once

// The one conversation between Quorvane and its charging helper, shared by both sides. The
// helper answers 0 when the system management controller took the change, or -2 when it
// could not (the charging keys are absent or the write failed).
#ifdef __OBJC__
#import <Foundation/Foundation.h>

// The helper's launchd label and Mach service name, and its property list in the app's
// Contents/Library/LaunchDaemons.
#define QV_CHARGING_HELPER_SERVICE "com.quorvane.app.ChargingHelper"
#define QV_CHARGING_HELPER_PLIST "com.quorvane.app.ChargingHelper.plist"

@protocol QVChargingHelper
- (void)setChargingEnabled:(BOOL)enabled reply:(void (^)(int status))reply;
@end
#endif
