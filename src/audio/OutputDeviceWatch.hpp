#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "audio/PropertyListener.hpp"

namespace quorvane {

// Follows the default output device and the two things about it that a tap's aggregate device
// is built around: its sample rate and its channel layout. A tap built before either changed
// plays at the wrong rate or into the wrong channels, so the owner rebuilds its taps whenever
// `changed` runs. Main thread only.
class OutputDeviceWatch {
public:
    static constexpr const char* kNoRate = "The sound output reports no sample rate";

    // Reads the device at once; `changed` runs after every later change, never from here.
    OutputDeviceWatch(AudioHardware& hardware, std::function<void()> changed);
    OutputDeviceWatch(const OutputDeviceWatch&) = delete;
    OutputDeviceWatch& operator=(const OutputDeviceWatch&) = delete;

    // 0 while the default output cannot be read.
    AudioObjectID device() const { return device_; }
    // A positive number of hertz, or nothing while it cannot be read.
    std::optional<double> sampleRate() const { return sampleRate_; }
    // Why the device or its rate could not be read; nothing when both could.
    const std::optional<std::string>& problem() const { return problem_; }

private:
    void follow();
    void deviceChanged();

    AudioHardware& hardware_;
    std::function<void()> changed_;
    AudioObjectID device_ = 0;
    std::optional<double> sampleRate_;
    std::optional<std::string> problem_;
    std::unique_ptr<PropertyListener> defaultListener_;
    std::unique_ptr<PropertyListener> rateListener_;
    std::unique_ptr<PropertyListener> layoutListener_;
};

}  // namespace quorvane
