#pragma once

#include "platform/ServiceStatus.hpp"

namespace quorvane {

// Quorvane's privileged helper, which alone may switch the battery's charging: a launch daemon
// registered through the service-management framework and reached over a privileged XPC
// connection. Statuses are 0 for success, else one of the k… values below or the system's own
// error code.
class ChargingHelper {
public:
    // The daemon's registration, as SMAppService reports it.
    using Status = ServiceStatus;

    static constexpr int kUnreachable = -1;  // no answer over the connection
    static constexpr int kRefused = -2;      // the helper answered that it could not do it
    static constexpr int kUnsupported = -3;  // no helper on this system at all

    virtual ~ChargingHelper() = default;
    virtual Status status() = 0;
    // Registers the daemon; the system then asks the user to approve it in System Settings.
    virtual int registerHelper() = 0;
    // Removes the daemon's registration.
    virtual int unregisterHelper() = 0;
    // Asks the helper to let the battery charge or to hold it where it is.
    virtual int setChargingEnabled(bool enabled) = 0;
};

}  // namespace quorvane
