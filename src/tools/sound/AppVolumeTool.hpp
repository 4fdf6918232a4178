#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "app/MenuBarPanel.hpp"
#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "audio/AppAudioTap.hpp"
#include "audio/AudioProcessMonitor.hpp"
#include "audio/OutputDeviceWatch.hpp"
#include "platform/Platform.hpp"
#include "tools/sound/AppVolumeList.hpp"
#include "ui/PanelContent.hpp"

namespace quorvane {

class EqualizerEngine;
class TappedProcessCounts;

// Gives every application its own level, from silent to three times its normal loudness, from
// a mixer under its own menu-bar item. An application keeps a tap on the default output device
// exactly while its level differs from normal; the tap runs only while the application plays
// (and three seconds after), so the system's recording indicator shows only then.
class AppVolumeTool : public Tool {
public:
    static constexpr const char* kVolumesKey = "appVolume.volumes";
    static constexpr const char* kMutedKey = "appVolume.muted";
    static constexpr double kMaximumLevel = 3.0;
    // Levels this close to normal are normal: a slider rarely lands on 100% exactly.
    static constexpr double kSnap = 0.03;
    static constexpr Seconds kQuietDelay{3.0};
    // NSSquareStatusItemLength.
    static constexpr double kSquareItemLength = -2.0;
    static constexpr const char* kItemImage = "speaker.wave.2.fill";
    static constexpr const char* kItemDescription = "App volume";
    static constexpr const char* kErrorPrefix = "Couldn't control ";
    static constexpr const char* kOutputErrorPrefix = "Couldn't control any app: ";
    static constexpr const char* kReset = "Reset to Normal Volume";
    static constexpr const char* kResetAll = "Reset All Apps to Normal Volume";
    static constexpr const char* kListedHelp =
        "Apps show up here once they play sound, and stay listed while they're open.";
    static constexpr const char* kLevelsHelp =
        "Apps you haven't adjusted play exactly as they normally would. Above 100%, an app plays "
        "louder than the Mac's own volume allows, up to 300%. Quorvane keeps boosted sound from "
        "crackling by gently turning down only its loudest moments. Safari and other apps that "
        "show web pages share one control, because macOS plays all web audio through a single "
        "process.";
    static constexpr const char* kIndicatorHeading =
        "Why Control Center says “System Audio Recording”";
    static constexpr const char* kIndicatorHelp =
        "To change one app's volume, macOS has the sound pass through the volume control, and it "
        "labels that “System Audio Recording”. Nothing is recorded or saved. It only shows while "
        "an app you've turned up or down is playing, and goes away when that app is quiet or back "
        "at 100%. Other volume apps, such as SoundSource, show the same label.";

    // The application's shared engine and tapped-process table.
    AppVolumeTool(const ToolDescriptor& descriptor, const Platform& platform);
    AppVolumeTool(const ToolDescriptor& descriptor, const Platform& platform,
                  const EqualizerEngine& engine, TappedProcessCounts& tappedProcesses);
    ~AppVolumeTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    // What the menu-bar panel shows.
    SettingsPage mixerPage();

    // 0 when muted, else its level (1 when it has none).
    double gain(const std::string& id) const;
    // The level kept for the application, muted or not.
    double level(const std::string& id) const;
    bool isMuted(const std::string& id) const { return mutedIDs_.contains(id); }
    bool hasAdjustments() const { return !volumes_.empty() || !mutedIDs_.empty(); }
    const std::map<std::string, double>& volumes() const { return volumes_; }
    const std::set<std::string>& mutedIDs() const { return mutedIDs_; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    bool isActive() const { return isActive_; }
    const std::map<std::string, std::unique_ptr<AppAudioTap>>& taps() const { return taps_; }
    AudioProcessMonitor& monitor() { return monitor_; }
    AppVolumeList& list() { return list_; }
    MenuBarPanel* panel() { return panel_.get(); }

    // Kept within 0 to 3; within 0.03 of normal the application is normal again.
    void setVolume(const std::string& id, double level);
    void setMuted(const std::string& id, bool muted);
    void reset(const std::string& id);
    void resetAll();
    // Brings the taps in line with the levels, the applications and the output device.
    void syncTaps();

private:
    void loadSettings();
    void saveSettings();
    void changed();
    void outputChanged();
    void addMixer(SettingsPage& page, bool compact);
    // The mixer's rows and its error: the page is built again when this changes.
    std::string mixerLayout();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    const EqualizerEngine& engine_;
    TappedProcessCounts& tappedProcesses_;

    AudioProcessMonitor monitor_;
    std::optional<std::string> lastError_;
    std::map<std::string, double> volumes_;
    std::set<std::string> mutedIDs_;
    bool isActive_ = false;
    std::map<std::string, std::unique_ptr<AppAudioTap>> taps_;
    // Follows the default output device, its rate and its layout.
    std::unique_ptr<OutputDeviceWatch> outputListener_;
    PanelContent panelContent_;
    std::unique_ptr<MenuBarPanel> panel_;
    std::map<std::string, Seconds> quietSince_;
    Timer pauseTimer_;
    AppVolumeList list_;
};

}  // namespace quorvane
