#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/system/SafeDrivesPlan.hpp"

namespace quorvane {

// Unmounts the external drives before the Mac sleeps and mounts the same ones again when it
// wakes. Sleep waits for the unmounts, but never longer than a deadline: a drive that cannot
// go in time stays mounted and is reported, rather than keeping the Mac awake.
class SafeDrivesTool : public Tool {
public:
    static constexpr const char* kRemountKey = "safeDrives.remount";
    // Under the system's own 30-second limit for answering "will sleep".
    static constexpr double kSleepDeadlineSeconds = 20;

    SafeDrivesTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~SafeDrivesTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool remounts() const { return remount_; }
    void setRemounts(bool on);
    // The names of the volumes ejected for the last sleep that are not back yet.
    std::vector<std::string> ejectedNames() const;
    const std::optional<std::string>& lastError() const { return lastError_; }

private:
    void powerMessage(std::uint32_t message, const std::function<void()>& allow);
    void ejectForSleep(std::function<void()> allow);
    void finishSleep();
    void mountAfterWake();
    void mountRemembered(bool report);
    static std::string dissent(int status);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool remount_;
    bool running_ = false;
    SafeDrivesPlan plan_;
    std::map<std::string, std::string> names_;  // BSD name → volume name, for messages
    std::optional<std::string> lastError_;
    Subscription systemPower_;
    std::function<void()> allowSleep_;
    std::size_t outstanding_ = 0;
    Timer deadline_;
    std::vector<Subscription> requests_;
};

}  // namespace quorvane
