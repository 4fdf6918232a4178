#include "tools/sound/HeadphoneMicTool.hpp"

#include <algorithm>
#include <iterator>

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

HeadphoneMicTool::HeadphoneMicTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      preferredMicUID_(platform.preferences.string(kPreferredKey)) {}

HeadphoneMicTool::~HeadphoneMicTool() {
    stop();
}

bool HeadphoneMicTool::isBluetooth(const AudioDevice& device) {
    return device.transportType == hal::kTransportBluetooth ||
           device.transportType == hal::kTransportBluetoothLE;
}

std::vector<AudioDevice> HeadphoneMicTool::usableMicrophones(
    const std::vector<AudioDevice>& inputs) {
    std::vector<AudioDevice> usable;
    std::copy_if(inputs.begin(), inputs.end(), std::back_inserter(usable),
                 [](const AudioDevice& device) { return !isBluetooth(device); });
    return usable;
}

std::optional<AudioDevice> HeadphoneMicTool::target(
    const std::vector<AudioDevice>& inputs, const std::optional<std::string>& preferredUID) {
    const auto usable = usableMicrophones(inputs);
    const auto first = [&](auto predicate) -> std::optional<AudioDevice> {
        const auto found = std::find_if(usable.begin(), usable.end(), predicate);
        return found == usable.end() ? std::nullopt : std::optional(*found);
    };
    if (preferredUID) {
        if (auto preferred =
                first([&](const AudioDevice& device) { return device.uid == *preferredUID; })) {
            return preferred;
        }
    }
    if (auto builtIn = first([](const AudioDevice& device) {
            return device.transportType == hal::kTransportBuiltIn;
        })) {
        return builtIn;
    }
    return first([](const AudioDevice&) { return true; });
}

void HeadphoneMicTool::setPreferredMicUID(std::optional<std::string> uid) {
    preferredMicUID_ = std::move(uid);
    if (preferredMicUID_) {
        platform_.preferences.set(kPreferredKey, *preferredMicUID_);
    } else {
        platform_.preferences.remove(kPreferredKey);
    }
    publish();
}

void HeadphoneMicTool::start() {
    if (isActive()) {
        return;
    }
    // The check must see every change of the default input and every device that comes or
    // goes, since a newly connected headset may take over the input.
    for (const std::uint32_t selector : {hal::kDefaultInputDevice, hal::kDevices}) {
        listeners_.push_back(
            std::make_unique<PropertyListener>(platform_.audioHardware, hal::kSystemObject,
                                               hal::globalAddress(selector), [this] { check(); }));
    }
    check();
}

void HeadphoneMicTool::stop() {
    if (!isActive()) {
        return;
    }
    listeners_.clear();
    publish();
}

void HeadphoneMicTool::check() {
    AudioHardware& hardware = platform_.audioHardware;
    inputDevices_ = quorvane::inputDevices(hardware);
    currentInput_ = defaultInputDevice(hardware);
    if (currentInput_ && !isBluetooth(*currentInput_)) {
        publish();
        return;
    }
    const auto microphone = target(inputDevices_, preferredMicUID_);
    if (!microphone) {
        publish();
        return;
    }
    try {
        setDefaultInputDevice(hardware, microphone->id);
        ++switchedThisSession_;
        currentInput_ = microphone;
    } catch (const CoreAudioError&) {
        // Left as it was; the next change of devices tries again.
    }
    publish();
}

}  // namespace quorvane
