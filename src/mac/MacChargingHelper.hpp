#pragma once

#include <memory>

#include "platform/ChargingHelper.hpp"

namespace quorvane {

// The charging helper as a launch daemon registered with SMAppService and reached over a
// privileged NSXPCConnection. The connection stays open while Quorvane runs: the helper
// switches charging back on when its last client goes away, so a crash cannot leave the
// battery held.
class MacChargingHelper final : public ChargingHelper {
public:
    MacChargingHelper();
    ~MacChargingHelper() override;
    MacChargingHelper(const MacChargingHelper&) = delete;
    MacChargingHelper& operator=(const MacChargingHelper&) = delete;

    Status status() override;
    int registerHelper() override;
    int unregisterHelper() override;
    int setChargingEnabled(bool enabled) override;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace quorvane
