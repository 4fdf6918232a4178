// Quorvane's charging helper: a launch daemon, started by launchd when the app connects to its
// Mach service, that switches the battery's charging on or off for the app and nothing else.
// It runs as root, so it trusts no input: the one request carries a yes or no, and only a
// peer signed as Quorvane by the same team is heard at all.

#import <Foundation/Foundation.h>

#include <dispatch/dispatch.h>

#include "mac/ChargingHelper/SmcChargingSwitch.hpp"
#include "mac/ChargingHelperProtocol.h"
#include "platform/ChargingHelperPeer.hpp"

#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

// The team that signs Quorvane, given by the build (QUORVANE_DEVELOPMENT_TEAM). Without it no
// peer can be checked, so every connection is refused.
#ifndef QV_DEVELOPMENT_TEAM
#define QV_DEVELOPMENT_TEAM ""
#endif

// Answers the app's requests. Exported objects are called on a queue of each connection's
// own, so the controller is reached from one serial queue, which also keeps the count of
// clients.
@interface QVChargingHelperService : NSObject <NSXPCListenerDelegate, QVChargingHelper>
@end

@implementation QVChargingHelperService {
    dispatch_queue_t queue_;
    NSUInteger clients_;
}

- (instancetype)init {
    if ((self = [super init])) {
        queue_ =
            dispatch_queue_create(QV_CHARGING_HELPER_SERVICE ".controller", DISPATCH_QUEUE_SERIAL);
    }
    return self;
}

- (BOOL)listener:(NSXPCListener*)listener
    shouldAcceptNewConnection:(NSXPCConnection*)newConnection {
    const auto requirement = quorvane::chargingHelperPeerRequirement(QV_DEVELOPMENT_TEAM);
    if (!requirement) {
        return NO;
    }
    // The requirement is checked by the system before any message is delivered; a peer that
    // fails it is cut off. unconfirmed: check on a Mac first (that its connection is then
    // invalidated like any other, which keeps the count of clients right).
    [newConnection setCodeSigningRequirement:@(requirement->c_str())];
    newConnection.exportedInterface =
        [NSXPCInterface interfaceWithProtocol:@protocol(QVChargingHelper)];
    newConnection.exportedObject = self;
    __weak QVChargingHelperService* weakSelf = self;
    newConnection.invalidationHandler = ^{
      [weakSelf clientLeft];
    };
    dispatch_async(queue_, ^{
      ++self->clients_;
    });
    [newConnection resume];
    return YES;
}

// The battery is never left held without Quorvane there to release it: when the last client
// has gone (quit, crash or a rejected signature), charging is switched back on.
- (void)clientLeft {
    dispatch_async(queue_, ^{
      if (self->clients_ > 0 && --self->clients_ == 0) {
          quorvane::SmcChargingSwitch::setChargingEnabled(true);
      }
    });
}

- (void)setChargingEnabled:(BOOL)enabled reply:(void (^)(int status))reply {
    const bool charge = enabled;
    dispatch_async(queue_, ^{
      reply(quorvane::SmcChargingSwitch::setChargingEnabled(charge));
    });
}

@end

int main() {
    // The listener keeps only a weak reference to its delegate, and neither ever ends.
    static QVChargingHelperService* service = [[QVChargingHelperService alloc] init];
    static NSXPCListener* listener =
        [[NSXPCListener alloc] initWithMachServiceName:@QV_CHARGING_HELPER_SERVICE];
    listener.delegate = service;
    [listener resume];
    // Connections are served on dispatch queues; the main thread only waits, until launchd ends
    // the process.
    dispatch_main();
}
