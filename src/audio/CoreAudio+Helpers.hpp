#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "audio/AudioDevice.hpp"
#include "audio/CoreAudioError.hpp"
#include "platform/AudioHardware.hpp"

// Typed reads and writes of HAL properties. Nothing is cached: every call asks the HAL. Reads
// that feed a display fall back quietly; reads and writes whose result decides an action throw
// CoreAudioError. Main thread only.
namespace quorvane {

// A fixed-size property read into a value of type T (a number, an ID or a plain struct).
template <typename T>
T readProperty(AudioHardware& hardware, AudioObjectID object, const AudioPropertyAddress& address) {
    T value{};
    auto size = static_cast<std::uint32_t>(sizeof(T));
    const OSStatus status = hardware.getPropertyData(object, address, size, &value);
    if (status != 0) {
        throw CoreAudioError::reading(status, address.selector);
    }
    return value;
}

// Empty when the HAL answers a NULL string.
std::string readStringProperty(AudioHardware& hardware, std::uint32_t selector,
                               AudioObjectID object);
std::vector<std::uint32_t> readIDListProperty(AudioHardware& hardware, std::uint32_t selector,
                                              std::uint32_t fillValue, AudioObjectID object);
// Sets a system-object property whose data is one object ID (the default devices).
void writeDeviceProperty(AudioHardware& hardware, AudioObjectID value, std::uint32_t selector);

std::optional<AudioDevice> deviceWithID(AudioHardware& hardware, AudioObjectID id);
std::vector<AudioDevice> allDevices(AudioHardware& hardware);
std::vector<AudioDevice> inputDevices(AudioHardware& hardware);
std::vector<AudioDevice> outputDevices(AudioHardware& hardware);

AudioObjectID defaultOutputDeviceID(AudioHardware& hardware);
std::optional<AudioDevice> defaultInputDevice(AudioHardware& hardware);
void setDefaultInputDevice(AudioHardware& hardware, AudioObjectID device);
void setDefaultOutputDevice(AudioHardware& hardware, AudioObjectID device);

}  // namespace quorvane
