#pragma once

namespace quorvane {

// Switches the battery's charging on or off through the system management controller's
// user client. Only root may write there, which is why this lives in the helper. Each call
// opens the controller afresh: the helper is asked rarely, and holds nothing between requests.
class SmcChargingSwitch final {
public:
    // 0 when the controller took the change; -2 when no charging key exists on this machine,
    // the controller could not be opened, or a write failed.
    static int setChargingEnabled(bool enabled);
};

}  // namespace quorvane
