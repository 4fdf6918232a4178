#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/HIDBatteryReading.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

// The battery levels of Bluetooth mice, keyboards and trackpads, in the menu's tile and on
// the page, read again every few minutes while the tool is on. It changes nothing.
class DeviceBatteriesTool : public Tool {
public:
    static constexpr const char* kLowLevelKey = "deviceBatteries.lowLevel";
    static constexpr double kReadSeconds = 300;

    DeviceBatteriesTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~DeviceBatteriesTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    void readBatteries();
    const std::vector<HIDBatteryReading>& devices() const { return devices_; }
    int lowLevel() const { return lowLevel_; }
    void setLowLevel(int percent);

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    int lowLevel_;
    bool running_ = false;
    std::vector<HIDBatteryReading> devices_;
    Timer timer_;
};

}  // namespace quorvane
