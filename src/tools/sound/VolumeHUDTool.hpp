#pragma once

#include <memory>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "tools/sound/VolumeKeys.hpp"

namespace quorvane {

// The volume keys change the default output's volume and mute themselves and show the classic
// card with its 16-segment bar, instead of the system's small notice. Keys of outputs without
// a volume control go on to the system untouched.
class VolumeHUDTool : public Tool {
public:
    static constexpr Seconds kCardDuration{1.5};

    VolumeHUDTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(Event& event);
    bool press(const VolumeKeys::Press& press, bool fine);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::unique_ptr<EventTap> tap_;
    std::string lastError_;
};

}  // namespace quorvane
