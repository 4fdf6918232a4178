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

// Keeps the default input off Bluetooth headsets. A headset whose microphone is in use drops to
// its two-way call mode, which sounds muffled; moving the input to a microphone that is not
// Bluetooth lets the headphones keep playing in full quality.
class HeadphoneMicTool : public Tool {
public:
    static constexpr const char* kPreferredKey = "headphoneMic.preferredUID";
    static constexpr const char* kMicrophoneLabel = "Microphone to use";
    static constexpr const char* kAutomatic = "Automatic (any connected microphone)";
    static constexpr const char* kBuiltIn = "Built-in microphone";
    static constexpr const char* kSwitchedLabel = "Headphone mic avoided this session";
    static constexpr const char* kNoMicrophone =
        "This Mac has no microphone other than your headphones' own. Connect a USB or wired "
        "microphone, or a webcam with one, and Quorvane uses it for calls.";
    static constexpr const char* kWhenToTurnOff =
        "Turn this off when you want people on a call to hear you through your headphones' "
        "microphone, for example when you're away from your Mac.";

    HeadphoneMicTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~HeadphoneMicTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    static bool isBluetooth(const AudioDevice& device);
    // The input devices that are not Bluetooth, in the device list's order.
    static std::vector<AudioDevice> usableMicrophones(const std::vector<AudioDevice>& inputs);
    // The preferred microphone when connected, else the built-in one, else the first usable one.
    static std::optional<AudioDevice> target(const std::vector<AudioDevice>& inputs,
                                             const std::optional<std::string>& preferredUID);

    const std::optional<std::string>& preferredMicUID() const { return preferredMicUID_; }
    // Nothing means automatic.
    void setPreferredMicUID(std::optional<std::string> uid);
    const std::vector<AudioDevice>& inputDevices() const { return inputDevices_; }
    const std::optional<AudioDevice>& currentInput() const { return currentInput_; }
    int switchedThisSession() const { return switchedThisSession_; }
    bool isActive() const { return !listeners_.empty(); }
    // Moves the default input off a Bluetooth headset when it is on one.
    void check();

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::optional<std::string> preferredMicUID_;
    std::vector<AudioDevice> inputDevices_;
    std::optional<AudioDevice> currentInput_;
    int switchedThisSession_ = 0;
    std::vector<std::unique_ptr<PropertyListener>> listeners_;
};

}  // namespace quorvane
