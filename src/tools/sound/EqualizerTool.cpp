#include "tools/sound/EqualizerTool.hpp"

#include <algorithm>
#include <cmath>

#include <unistd.h>

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/OwnProcessObjects.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "platform/NotificationBus.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

double clampGain(double decibels) {
    return std::isfinite(decibels)
               ? std::clamp(decibels, -EqualizerTool::kGainLimit, EqualizerTool::kGainLimit)
               : 0.0;
}

}  // namespace

EqualizerTool::EqualizerTool(const ToolDescriptor& descriptor, const Platform& platform)
    : EqualizerTool(descriptor, platform, EqualizerEngine::shared(),
                    TappedProcessCounts::shared()) {}

EqualizerTool::EqualizerTool(const ToolDescriptor& descriptor, const Platform& platform,
                             EqualizerEngine& engine, TappedProcessCounts& tappedProcesses)
    : descriptor_(descriptor),
      platform_(platform),
      engine_(engine),
      tappedProcesses_(tappedProcesses),
      monitor_(platform.audioHardware, platform.processFacts, platform.preferences,
               platform.scheduler) {
    loadSettings();
}

EqualizerTool::~EqualizerTool() {
    stop();
}

// Stored values of the wrong kind leave the defaults in place and are not written back until
// the user changes something.
void EqualizerTool::loadSettings() {
    if (const auto stored = platform_.preferences.object(kGainsKey); stored && stored->array()) {
        Gains gains{};
        const auto& elements = *stored->array();
        const bool numbers = std::all_of(elements.begin(), elements.end(),
                                         [](const auto& e) { return e.number().has_value(); });
        if (numbers) {
            for (std::size_t band = 0; band < std::min(elements.size(), gains.size()); ++band) {
                gains[band] = clampGain(*elements[band].number());
            }
            gains_ = gains;
        }
    }
    preamp_ = clampGain(platform_.preferences.number(kPreampKey).value_or(0.0));
}

bool EqualizerTool::isFlat() const {
    return EqualizerEngine::isFlat(gains_, preamp_);
}

std::string EqualizerTool::presetName() const {
    const EqualizerPreset* preset = EqualizerPreset::matching(gains_);
    return preset ? preset->name : EqualizerPreset::kCustomName;
}

void EqualizerTool::setGain(std::size_t band, double decibels) {
    if (band >= gains_.size()) {
        return;
    }
    gains_[band] = clampGain(decibels);
    changed();
}

void EqualizerTool::setPreamp(double decibels) {
    preamp_ = clampGain(decibels);
    changed();
}

void EqualizerTool::applyPreset(std::string_view name) {
    if (const EqualizerPreset* preset = EqualizerPreset::named(name)) {
        gains_ = preset->gains;
        changed();
    }
}

void EqualizerTool::resetToFlat() {
    gains_ = {};
    preamp_ = 0;
    changed();
}

void EqualizerTool::changed() {
    PreferenceValue::Array gains(gains_.begin(), gains_.end());
    platform_.preferences.set(kGainsKey, PreferenceValue(std::move(gains)));
    platform_.preferences.set(kPreampKey, preamp_);
    if (isActive_) {
        engine_.update(gains_, preamp_, sampleRate_);
        upkeep();
    }
    publish();
}

void EqualizerTool::start() {
    if (isActive_) {
        return;
    }
    isActive_ = true;
    AudioHardware& hardware = platform_.audioHardware;
    output_ = std::make_unique<OutputDeviceWatch>(hardware, [this] { outputChanged(); });
    sampleRate_ = output_->sampleRate().value_or(kFallbackSampleRate);
    engine_.update(gains_, preamp_, sampleRate_);
    processListListener_ = std::make_unique<PropertyListener>(
        hardware, hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList),
        [this] { upkeep(); });
    tapsToken_ = platform_.notifications.observe(TappedProcessCounts::kChangedNotification,
                                                 [this](const auto&) { upkeep(); });
    monitor_.onChange = [this] { upkeep(); };
    monitor_.start();
    upkeep();
    publish();
}

void EqualizerTool::stop() {
    if (!isActive_) {
        return;
    }
    isActive_ = false;
    monitor_.stop();
    monitor_.onChange = nullptr;
    output_.reset();
    processListListener_.reset();
    tapsToken_.cancel();
    pauseTimer_.cancel();
    quietSince_.reset();
    tap_.reset();
    lastError_.reset();
    // App taps read the same engine: with the equalizer off they must play the sound unchanged.
    engine_.update({}, 0.0, sampleRate_);
    publish();
}

// A new device, rate or channel layout: the tap is built again around it, with coefficients
// for its rate.
void EqualizerTool::outputChanged() {
    tap_.reset();
    sampleRate_ = output_->sampleRate().value_or(kFallbackSampleRate);
    engine_.update(gains_, preamp_, sampleRate_);
    upkeep();
}

bool EqualizerTool::somethingPlays() const {
    const auto& apps = monitor_.apps();
    return std::any_of(apps.begin(), apps.end(), [](const AudioApp& app) { return app.isPlaying; });
}

void EqualizerTool::upkeep() {
    if (!isActive_) {
        return;
    }
    if (isFlat()) {
        // Nothing to change, so nothing is captured and no recording indicator shows.
        tap_.reset();
        quietSince_.reset();
        pauseTimer_.cancel();
        lastError_.reset();
        publish();
        return;
    }

    bool shouldRun = true;
    if (somethingPlays()) {
        quietSince_.reset();
        pauseTimer_.cancel();
    } else {
        const Seconds now = platform_.scheduler.now();
        if (!quietSince_) {
            quietSince_ = now;
        }
        const Seconds deadline = *quietSince_ + kQuietDelay;
        shouldRun = now < deadline;
        if (shouldRun) {
            pauseTimer_ = platform_.scheduler.after(deadline - now, [this] { upkeep(); });
        } else {
            pauseTimer_.cancel();
        }
    }

    if (const auto& problem = output_->problem()) {
        // Without the device's rate the filters would be wrong, or divide by nothing.
        tap_.reset();
        lastError_ = kErrorPrefix + *problem;
        publish();
        return;
    }
    try {
        AudioHardware& hardware = platform_.audioHardware;
        const AudioObjectID device = output_->device();
        std::vector<AudioObjectID> excluded = tappedProcesses_.processes();
        for (const AudioObjectID own : processObjectsOf(hardware, ::getpid())) {
            excluded.push_back(own);
        }
        std::sort(excluded.begin(), excluded.end());
        excluded.erase(std::unique(excluded.begin(), excluded.end()), excluded.end());
        if (tap_ && (tap_->outputDevice() != device || tap_->processObjects() != excluded)) {
            tap_.reset();
        }
        if (tap_) {
            tap_->setRunning(shouldRun);
        } else {
            tap_ = AppAudioTap::global(hardware, engine_, std::move(excluded), device, shouldRun);
            tap_->onLateStartFailure = [this](const CoreAudioError& error) {
                lastError_ = kErrorPrefix + error.description();
                publish();
            };
        }
        lastError_.reset();
    } catch (const CoreAudioError& error) {
        lastError_ = kErrorPrefix + error.description();
    }
    publish();
}

}  // namespace quorvane
