#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "audio/AudioDevice.hpp"
#include "audio/PropertyListener.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// Keeps the device the user chose as the default output or input: when the system switches to
// something else (a display, a TV, a headset that connects) while the chosen device is still
// connected, it is made the default again. A chosen device that disconnects is not fought for;
// it is made the default again when it returns.
class DeviceLockTool : public Tool {
public:
    enum class Role { output, input };
    static constexpr const char* kNotConnectedSuffix = " (not connected)";

    DeviceLockTool(const ToolDescriptor& descriptor, const Platform& platform, Role role);
    ~DeviceLockTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    Role role() const { return role_; }
    // "outputLock" or "micLock": the prefix of this lock's preference keys.
    const char* prefix() const;
    const std::optional<std::string>& lockedUID() const { return lockedUID_; }
    const std::string& lockedName() const { return lockedName_; }
    // Locks this device; while on, it becomes the default at once.
    void choose(const AudioDevice& device);
    const std::optional<std::string>& lastError() const { return lastError_; }
    int restoredThisSession() const { return restored_; }
    bool isActive() const { return !listeners_.empty(); }
    // The devices that can take the role now.
    std::vector<AudioDevice> candidates();
    // Makes the chosen device the default again when it is connected and is not.
    void check();

private:
    std::optional<AudioObjectID> currentDefault();
    void setDefault(AudioObjectID device);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    Role role_;
    std::optional<std::string> lockedUID_;
    std::string lockedName_;
    std::optional<std::string> lastError_;
    int restored_ = 0;
    std::vector<std::unique_ptr<PropertyListener>> listeners_;
};

}  // namespace quorvane
