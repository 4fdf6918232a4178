#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/UserActionMonitor.hpp"
#include "platform/Platform.hpp"
#include "platform/RunningApplication.hpp"

namespace quorvane {

// Quits the Music app when something other than the user started it: plugging in headphones,
// a Bluetooth device connecting, or the play key with nothing else to play.
class StopMusicTool : public Tool {
public:
    static constexpr const char* kStoppedCountKey = "stopMusic.stoppedCount";

    StopMusicTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return userActions_ != nullptr; }
    std::int64_t stoppedCount() const { return stoppedCount_; }
    const std::string& lastError() const { return lastError_; }

private:
    void launched(const RunningApplication& app);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::unique_ptr<UserActionMonitor> userActions_;
    Subscription launches_;
    std::int64_t stoppedCount_ = 0;
    std::string lastError_;
};

}  // namespace quorvane
