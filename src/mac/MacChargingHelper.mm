#include "mac/MacChargingHelper.hpp"

#include "mac/ChargingHelperProtocol.h"
#include "mac/MacFrameworks.h"

namespace quorvane {

struct MacChargingHelper::Connection {
    NSXPCConnection* connection = nil;
};

namespace {

SMAppService* daemon() {
    return [SMAppService daemonServiceWithPlistName:@QV_CHARGING_HELPER_PLIST];
}

}  // namespace

MacChargingHelper::MacChargingHelper() : connection_(std::make_unique<Connection>()) {}

MacChargingHelper::~MacChargingHelper() { [connection_->connection invalidate]; }

ChargingHelper::Status MacChargingHelper::status() {
    switch (daemon().status) {
        case SMAppServiceStatusEnabled:
            return Status::enabled;
        case SMAppServiceStatusRequiresApproval:
            return Status::requiresApproval;
        case SMAppServiceStatusNotFound:
            return Status::notFound;
        case SMAppServiceStatusNotRegistered:
            break;
    }
    return Status::notRegistered;
}

int MacChargingHelper::registerHelper() {
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

int MacChargingHelper::unregisterHelper() {
    [connection_->connection invalidate];
    connection_->connection = nil;
    NSError* error = nil;
    if ([daemon() unregisterAndReturnError:&error]) {
        return 0;
    }
    return error ? static_cast<int>(error.code) : kUnreachable;
}

int MacChargingHelper::setChargingEnabled(bool enabled) {
    if (!connection_->connection) {
        // unconfirmed: check on a Mac first (NSXPCConnectionPrivileged for a daemon's Mach
        // service; the helper checks the caller's code signature before it obeys).
        NSXPCConnection* connection =
            [[NSXPCConnection alloc] initWithMachServiceName:@QV_CHARGING_HELPER_SERVICE
                                                     options:NSXPCConnectionPrivileged];
        connection.remoteObjectInterface =
            [NSXPCInterface interfaceWithProtocol:@protocol(QVChargingHelper)];
        [connection resume];
        connection_->connection = connection;
    }
    __block int status = kUnreachable;
    // The answer is awaited: the helper only writes two keys, and the tool decides its next
    // step on it. A connection that fails answers through the error handler instead.
    id<QVChargingHelper> helper =
        [connection_->connection synchronousRemoteObjectProxyWithErrorHandler:^(NSError* error) {
          (void)error;
          status = kUnreachable;
        }];
    [helper setChargingEnabled:enabled ? YES : NO
                         reply:^(int answer) {
                           status = answer;
                         }];
    if (status == kUnreachable) {
        // A broken connection is made anew next time, e.g. after the helper was approved.
        [connection_->connection invalidate];
        connection_->connection = nil;
    }
    return status;
}

}  // namespace quorvane
