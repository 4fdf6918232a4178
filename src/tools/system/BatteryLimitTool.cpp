#include "tools/system/BatteryLimitTool.hpp"

#include "app/PowerAssertion.hpp"
#include "platform/PowerSources.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

BatteryLimitTool::BatteryLimitTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      policy_(static_cast<int>(
          platform.preferences.integer(kLimitKey).value_or(ChargeLimitPolicy::kDefaultLimit))) {}

BatteryLimitTool::~BatteryLimitTool() {
    stop();
}

void BatteryLimitTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    changes_ = platform_.powerSources.observeChanges([this] { evaluate(); });
    // The helper may be approved in System Settings at any time, and a change notification
    // may be missed across sleep: a slow re-check covers both.
    recheck_ = platform_.scheduler.every(Seconds{kRecheckSeconds}, [this] { evaluate(); });
    evaluate();
}

void BatteryLimitTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    changes_.cancel();
    recheck_.cancel();
    lastError_.reset();
    if (sent_ == false) {
        send(true);
    }
    sent_.reset();
    // A new start decides afresh from the charge it finds.
    policy_ = ChargeLimitPolicy(policy_.limit());
    publish();
}

void BatteryLimitTool::tidy() {
    if (platform_.preferences.boolean(kHoldingKey).value_or(false)) {
        send(true);
    }
}

std::optional<int> BatteryLimitTool::charge() const {
    for (const auto& source : platform_.powerSources.powerSources()) {
        if (source.type == PowerSourceDescription::kInternalBattery && source.isPresent &&
            source.currentCapacity && source.maxCapacity && *source.maxCapacity > 0) {
            return *source.currentCapacity * 100 / *source.maxCapacity;
        }
    }
    return std::nullopt;
}

void BatteryLimitTool::evaluate() {
    if (platform_.chargingHelper.status() != ChargingHelper::Status::enabled) {
        lastError_ = helperText();
        publish();
        return;
    }
    const bool charging = policy_.shouldCharge(charge());
    // Untouched, the system charges by itself: nothing is asked until the limit is reached.
    const bool needed = sent_ ? *sent_ != charging : !charging;
    if (!needed || send(charging)) {
        lastError_.reset();
    }
    publish();
}

bool BatteryLimitTool::send(bool charging) {
    const int status = platform_.chargingHelper.setChargingEnabled(charging);
    if (status != 0) {
        const std::string what = charging ? "Letting the battery charge" : "Holding the charge";
        lastError_ = status == ChargingHelper::kUnreachable
                         ? what + " failed: the helper did not answer."
                     : status == ChargingHelper::kRefused
                         ? what + " failed: the helper could not switch charging on this Mac."
                         : PowerAssertion::failure(what, status);
        return false;
    }
    sent_ = charging;
    if (charging) {
        platform_.preferences.remove(kHoldingKey);
    } else {
        platform_.preferences.set(kHoldingKey, PreferenceValue(true));
    }
    return true;
}

void BatteryLimitTool::setLimit(int percent) {
    policy_ = ChargeLimitPolicy(percent, policy_.band());
    platform_.preferences.set(kLimitKey, PreferenceValue(static_cast<std::int64_t>(limit())));
    if (running_) {
        evaluate();
    } else {
        publish();
    }
}

void BatteryLimitTool::installHelper() {
    const int status = platform_.chargingHelper.registerHelper();
    if (status == ChargingHelper::kUnsupported) {
        lastError_ = helperText();
    } else if (status != 0) {
        lastError_ = PowerAssertion::failure("Installing the helper", status);
    }
    if (running_) {
        evaluate();
    } else {
        publish();
    }
}

void BatteryLimitTool::removeHelper() {
    if (sent_ == false) {
        send(true);
    }
    const int status = platform_.chargingHelper.unregisterHelper();
    if (status != 0 && status != ChargingHelper::kUnsupported) {
        lastError_ = PowerAssertion::failure("Removing the helper", status);
    }
    sent_.reset();
    publish();
}

std::string BatteryLimitTool::helperText() const {
    switch (platform_.chargingHelper.status()) {
        case ChargingHelper::Status::enabled:
            return "The charging helper is installed and approved.";
        case ChargingHelper::Status::requiresApproval:
            return "Approve Quorvane's helper in System Settings › General › Login Items "
                   "(Allow in the Background) so it can hold the charge.";
        case ChargingHelper::Status::notRegistered:
            return "The charge limit needs Quorvane's charging helper. Install it below; "
                   "macOS asks for an administrator's approval.";
        case ChargingHelper::Status::notFound:
            break;
    }
    return "This copy of Quorvane has no charging helper, so it cannot limit the charge.";
}

std::optional<ToolControl> BatteryLimitTool::control() {
    return ToolControl{"Limit " + std::to_string(limit()) + "%", "battery.75percent",
                       [this] { return running_ && !lastError_; }, nullptr};
}

}  // namespace quorvane
