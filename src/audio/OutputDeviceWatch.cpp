#include "audio/OutputDeviceWatch.hpp"

#include <cmath>

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"

namespace quorvane {

OutputDeviceWatch::OutputDeviceWatch(AudioHardware& hardware, std::function<void()> changed)
    : hardware_(hardware), changed_(std::move(changed)) {
    defaultListener_ = std::make_unique<PropertyListener>(
        hardware_, hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice),
        [this] { deviceChanged(); });
    follow();
}

void OutputDeviceWatch::deviceChanged() {
    follow();
    changed_();
}

void OutputDeviceWatch::follow() {
    problem_.reset();
    sampleRate_.reset();
    AudioObjectID device = 0;
    try {
        device = defaultOutputDeviceID(hardware_);
    } catch (const CoreAudioError& error) {
        problem_ = error.description();
    }
    if (device != device_ || !rateListener_) {
        device_ = device;
        rateListener_.reset();
        layoutListener_.reset();
        if (device_ != hal::kUnknownObject) {
            rateListener_ = std::make_unique<PropertyListener>(
                hardware_, device_, hal::globalAddress(hal::kNominalSampleRate),
                [this] { deviceChanged(); });
            layoutListener_ = std::make_unique<PropertyListener>(
                hardware_, device_,
                AudioPropertyAddress{hal::kStreamConfiguration, hal::kScopeOutput,
                                     hal::kElementMain},
                [this] { deviceChanged(); });
        }
    }
    if (problem_) {
        return;
    }
    if (device_ == hal::kUnknownObject) {
        problem_ = "There is no sound output";
        return;
    }
    try {
        const double rate =
            readProperty<double>(hardware_, device_, hal::globalAddress(hal::kNominalSampleRate));
        // A device that is going away can answer 0, and every filter divides by the rate.
        if (std::isfinite(rate) && rate > 0) {
            sampleRate_ = rate;
        } else {
            problem_ = kNoRate;
        }
    } catch (const CoreAudioError& error) {
        problem_ = error.description();
    }
}

}  // namespace quorvane
