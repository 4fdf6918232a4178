#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/ChargingHelperProtocol.h"
#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

SMAppService* daemon() {
    return [SMAppService daemonServiceWithPlistName:@QV_CHARGING_HELPER_PLIST];
}

// The charging helper as a launch daemon registered with SMAppService and reached over a
// privileged NSXPCConnection. The connection stays open while Quorvane runs: the helper
// switches charging back on when its last client goes away, so a crash cannot leave the
// battery held.
class MacChargingHelper final : public ChargingHelper {
public:
    MacChargingHelper() = default;
    ~MacChargingHelper() override { [connection_ invalidate]; }
    MacChargingHelper(const MacChargingHelper&) = delete;
    MacChargingHelper& operator=(const MacChargingHelper&) = delete;

    ChargingHelper::Status status() override { return serviceStatus(daemon().status); }

    int registerHelper() override {
        SMAppService* service = daemon();
        NSError* error = nil;
        if ([service registerAndReturnError:&error]) {
            return 0;
        }
        // A daemon waits for the user's approval in System Settings; registering then answers
        // an error although the registration stands. Take the user there.
        // unconfirmed: check on a Mac first (that the status reads "requires approval" here).
        if (service.status == SMAppServiceStatusRequiresApproval) {
            [SMAppService openSystemSettingsLoginItems];
            return 0;
        }
        return error ? static_cast<int>(error.code) : kUnreachable;
    }

    int unregisterHelper() override {
        [connection_ invalidate];
        connection_ = nil;
        NSError* error = nil;
        if ([daemon() unregisterAndReturnError:&error]) {
            return 0;
        }
        return error ? static_cast<int>(error.code) : kUnreachable;
    }

    int setChargingEnabled(bool enabled) override {
        if (!connection_) {
            // unconfirmed: check on a Mac first (NSXPCConnectionPrivileged for a daemon's Mach
            // service; the helper checks the caller's code signature before it obeys).
            NSXPCConnection* connection =
                [[NSXPCConnection alloc] initWithMachServiceName:@QV_CHARGING_HELPER_SERVICE
                                                         options:NSXPCConnectionPrivileged];
            connection.remoteObjectInterface =
                [NSXPCInterface interfaceWithProtocol:@protocol(QVChargingHelper)];
            [connection resume];
            connection_ = connection;
        }
        __block int status = kUnreachable;
        // The answer is awaited: the helper only writes two keys, and the tool decides its next
        // step on it. A connection that fails answers through the error handler instead.
        id<QVChargingHelper> helper =
            [connection_ synchronousRemoteObjectProxyWithErrorHandler:^(NSError*) {
              status = kUnreachable;
            }];
        [helper setChargingEnabled:enabled ? YES : NO
                             reply:^(int answer) {
                               status = answer;
                             }];
        if (status == kUnreachable) {
            // A broken connection is made anew next time, e.g. after the helper was approved.
            [connection_ invalidate];
            connection_ = nil;
        }
        return status;
    }

private:
    NSXPCConnection* connection_ = nil;
};

}  // namespace

std::unique_ptr<ChargingHelper> makeMacChargingHelper() {
    return std::make_unique<MacChargingHelper>();
}

}  // namespace quorvane
