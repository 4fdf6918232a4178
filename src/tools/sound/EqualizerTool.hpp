#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "audio/AppAudioTap.hpp"
#include "audio/AudioProcessMonitor.hpp"
#include "audio/EqualizerPreset.hpp"
#include "audio/OutputDeviceWatch.hpp"
#include "audio/PropertyListener.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

class EqualizerEngine;
class TappedProcessCounts;

// Shapes everything the Mac plays with ten bands and a preamp. While the equalizer is away from
// flat it keeps one system-wide tap on the default output device that leaves out the processes
// the app volume mixer already taps (their taps equalize them) and Quorvane's own process,
// whose output is the taps' output: captured again, it would loop through the equalizer. The tap is
// released when the equalizer is flat and paused while nothing plays, so the system's recording
// indicator shows only while the equalizer is actually changing something.
class EqualizerTool : public Tool {
public:
    using Gains = EqualizerPreset::Gains;

    static constexpr const char* kGainsKey = "equalizer.gains";
    static constexpr const char* kPreampKey = "equalizer.preamp";
    static constexpr const char* kErrorPrefix = "The equalizer couldn't start: ";
    static constexpr const char* kHelp =
        "Applies to everything your Mac plays. A built-in limiter keeps boosted sound from "
        "crackling; if music sounds squashed, lower the preamp. While the equalizer changes the "
        "sound, macOS shows “System Audio Recording” in Control Center, because the sound passes "
        "through the equalizer on its way to your speakers. Nothing is recorded or saved. The "
        "label only shows while something plays, and never when the equalizer is set to Flat.";
    // How long the tap keeps running after the last sound stopped.
    static constexpr Seconds kQuietDelay{3.0};
    // The range of the band and preamp sliders, in dB either way, and their step.
    static constexpr double kGainLimit = 12.0;
    static constexpr double kGainStep = 0.5;
    // Used when the output device's rate cannot be read.
    static constexpr double kFallbackSampleRate = 48000;

    // The application's shared engine and tapped-process table.
    EqualizerTool(const ToolDescriptor& descriptor, const Platform& platform);
    EqualizerTool(const ToolDescriptor& descriptor, const Platform& platform,
                  EqualizerEngine& engine, TappedProcessCounts& tappedProcesses);
    ~EqualizerTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;
    // What the control tile's popover shows.
    SettingsPage menuPage();

    const Gains& gains() const { return gains_; }
    double preamp() const { return preamp_; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    bool isActive() const { return isActive_; }
    bool isFlat() const;
    // The preset the gains match, or "Custom".
    std::string presetName() const;
    const AppAudioTap* tap() const { return tap_.get(); }
    const AudioProcessMonitor& monitor() const { return monitor_; }

    // Each change is stored at once and, while the tool is on, heard at once. Values are kept
    // within the sliders' range.
    void setGain(std::size_t band, double decibels);
    void setPreamp(double decibels);
    // Unknown names change nothing.
    void applyPreset(std::string_view name);
    void resetToFlat();

private:
    void loadSettings();
    void changed();
    void outputChanged();
    void upkeep();
    bool somethingPlays() const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    EqualizerEngine& engine_;
    TappedProcessCounts& tappedProcesses_;

    Gains gains_{};
    double preamp_ = 0;
    std::optional<std::string> lastError_;
    AudioProcessMonitor monitor_;
    std::unique_ptr<AppAudioTap> tap_;
    bool isActive_ = false;
    // The default output device, its rate (the coefficients are computed for it) and layout.
    std::unique_ptr<OutputDeviceWatch> output_;
    // Quorvane's own process object appears once its taps play, and must be left out then.
    std::unique_ptr<PropertyListener> processListListener_;
    double sampleRate_ = kFallbackSampleRate;
    Subscription tapsToken_;
    std::optional<Seconds> quietSince_;
    Timer pauseTimer_;
};

}  // namespace quorvane
