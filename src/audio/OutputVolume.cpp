#include "audio/OutputVolume.hpp"

#include <cstdint>

#include "audio/AudioCodes.hpp"

namespace quorvane {

namespace {

constexpr AudioPropertyAddress outputAddress(std::uint32_t selector) {
    return {selector, hal::kScopeOutput, hal::kElementMain};
}

template <typename T>
std::optional<T> read(AudioHardware& hardware, AudioObjectID device, std::uint32_t selector) {
    T value{};
    auto size = static_cast<std::uint32_t>(sizeof value);
    if (hardware.getPropertyData(device, outputAddress(selector), size, &value) != 0 ||
        size != sizeof value) {
        return std::nullopt;
    }
    return value;
}

template <typename T>
void write(AudioHardware& hardware, AudioObjectID device, std::uint32_t selector, T value) {
    if (const OSStatus status =
            hardware.setPropertyData(device, outputAddress(selector), sizeof value, &value);
        status != 0) {
        throw CoreAudioError::writing(status, selector);
    }
}

}  // namespace

std::optional<float> outputVolume(AudioHardware& hardware, AudioObjectID device) {
    return read<float>(hardware, device, hal::kVirtualMainVolume);
}

void setOutputVolume(AudioHardware& hardware, AudioObjectID device, float volume) {
    write(hardware, device, hal::kVirtualMainVolume, volume);
}

std::optional<bool> outputMute(AudioHardware& hardware, AudioObjectID device) {
    const auto muted = read<std::uint32_t>(hardware, device, hal::kMute);
    return muted ? std::optional<bool>(*muted != 0) : std::nullopt;
}

void setOutputMute(AudioHardware& hardware, AudioObjectID device, bool muted) {
    write(hardware, device, hal::kMute, static_cast<std::uint32_t>(muted ? 1 : 0));
}

}  // namespace quorvane
