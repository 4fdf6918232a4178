#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "audio/AudioDevice.hpp"
#include "audio/PropertyListener.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

// Mutes and unmutes every microphone at once with a global shortcut or the menu's tile. A
// device with a mute control is muted with it; one without has its input volume set to 0, and
// its old volume is put back on unmuting. While muted, devices that connect and a new default
// input are muted too. Turning the tool off unmutes exactly what it muted.
class MicMuteTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "micMute.shortcut";
    // What muting changed, by device UID, kept until it is put back: a crash or a forced quit
    // while muted must not leave the microphones silent for good.
    static constexpr const char* kBackupKey = "micMute.originals";
    static constexpr const char* kMutedImage = "mic.slash.fill";
    static constexpr const char* kUnmutedImage = "mic.fill";
    static constexpr const char* kMutedTitle = "Microphone Muted";
    static constexpr const char* kUnmutedTitle = "Microphone On";
    static constexpr Seconds kNoticeDuration{1.5};
    // Per-channel controls are tried after the main element, up to this channel.
    static constexpr std::uint32_t kLastChannel = 2;

    MicMuteTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~MicMuteTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return !shortcut_.shortcut(); }
    void start() override;
    void stop() override;
    // After a crash while muted, puts back what the backup holds for devices present now.
    void tidy() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    bool isMuted() const { return isMuted_; }
    bool isActive() const { return !listeners_.empty(); }
    const std::optional<std::string>& lastError() const { return lastError_; }
    ShortcutSetting& shortcut() { return shortcut_; }
    // What the shortcut does; shows the new state on screen.
    void toggle();
    void setMuted(bool muted);

private:
    // What was changed on one device, to be put back.
    struct Saved {
        std::string uid;
        std::uint32_t selector = 0;                                   // mute or volume
        std::map<std::uint32_t, std::vector<std::uint8_t>> original;  // by element
    };
    void apply();
    void muteDevice(const AudioDevice& device);
    void restore();
    void writeBackup();
    void restoreBackup();
    void showNotice();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    bool isMuted_ = false;
    std::optional<std::string> lastError_;
    std::map<AudioObjectID, Saved> saved_;
    std::vector<std::unique_ptr<PropertyListener>> listeners_;
};

}  // namespace quorvane
