#pragma once

#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/ChargingHelper.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/system/ChargeLimitPolicy.hpp"

namespace quorvane {

// Holds the battery at a chosen charge through the privileged helper: charging stops at the
// limit and starts again below the limit minus the policy's band. Without an approved helper
// the tool does nothing and says what is missing. Charging is switched back on when the tool
// stops, and at the next launch if Quorvane ended while it was held.
class BatteryLimitTool : public Tool {
public:
    static constexpr const char* kLimitKey = "batteryLimit.limit";
    // Set while the helper holds charging off, so a crash is repaired by tidy.
    static constexpr const char* kHoldingKey = "batteryLimit.holding";
    static constexpr double kRecheckSeconds = 60;

    BatteryLimitTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~BatteryLimitTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    int limit() const { return policy_.limit(); }
    void setLimit(int percent);
    // The built-in battery's charge in percent; nothing on a Mac without one.
    std::optional<int> charge() const;
    // Whether the helper holds charging off right now.
    bool isHolding() const { return sent_ == false; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    void installHelper();
    void removeHelper();

private:
    void evaluate();
    bool send(bool charging);
    std::string helperText() const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ChargeLimitPolicy policy_;
    bool running_ = false;
    // What the helper was last told and did; nothing while the system charges by itself.
    std::optional<bool> sent_;
    std::optional<std::string> lastError_;
    Subscription changes_;
    Timer recheck_;
};

}  // namespace quorvane
