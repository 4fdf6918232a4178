#include "audio/CoreAudio+Helpers.hpp"

#include "audio/AudioCodes.hpp"

namespace quorvane {

namespace {

// The rest of a device once its uid is known: a name that cannot be read is shown as
// "Unknown Device", a transport that cannot be read as 0.
AudioDevice describeDevice(AudioHardware& hardware, AudioObjectID id, std::string uid) {
    AudioDevice device{id, std::move(uid), "Unknown Device", 0};
    try {
        device.name = readStringProperty(hardware, hal::kName, id);
    } catch (const CoreAudioError&) {
    }
    try {
        device.transportType =
            readProperty<std::uint32_t>(hardware, id, hal::globalAddress(hal::kTransportType));
    } catch (const CoreAudioError&) {
    }
    return device;
}

std::vector<AudioDevice> devicesWithStreams(AudioHardware& hardware, std::uint32_t scope) {
    std::vector<AudioDevice> result;
    for (AudioDevice& device : allDevices(hardware)) {
        std::uint32_t size = 0;
        if (hardware.getPropertyDataSize(device.id, {hal::kStreams, scope, hal::kElementMain},
                                         size) == 0 &&
            size > 0) {
            result.push_back(std::move(device));
        }
    }
    return result;
}

}  // namespace

std::string readStringProperty(AudioHardware& hardware, std::uint32_t selector,
                               AudioObjectID object) {
    std::optional<std::string> text;
    const OSStatus status =
        hardware.getStringPropertyData(object, hal::globalAddress(selector), text);
    if (status != 0) {
        throw CoreAudioError::reading(status, selector);
    }
    return text.value_or(std::string());
}

std::vector<std::uint32_t> readIDListProperty(AudioHardware& hardware, std::uint32_t selector,
                                              std::uint32_t fillValue, AudioObjectID object) {
    const AudioPropertyAddress address = hal::globalAddress(selector);
    std::uint32_t size = 0;
    if (const OSStatus status = hardware.getPropertyDataSize(object, address, size); status != 0) {
        throw CoreAudioError::sizing(status, selector);
    }
    if (size < sizeof(std::uint32_t)) {
        return {};
    }
    std::vector<std::uint32_t> ids(size / sizeof(std::uint32_t), fillValue);
    if (const OSStatus status = hardware.getPropertyData(object, address, size, ids.data());
        status != 0) {
        throw CoreAudioError::reading(status, selector);
    }
    return ids;
}

void writeDeviceProperty(AudioHardware& hardware, AudioObjectID value, std::uint32_t selector) {
    const OSStatus status = hardware.setPropertyData(
        hal::kSystemObject, hal::globalAddress(selector), sizeof(value), &value);
    if (status != 0) {
        throw CoreAudioError::writing(status, selector);
    }
}

std::optional<AudioDevice> deviceWithID(AudioHardware& hardware, AudioObjectID id) {
    if (id == hal::kUnknownObject) {
        return std::nullopt;
    }
    try {
        return describeDevice(hardware, id, readStringProperty(hardware, hal::kDeviceUID, id));
    } catch (const CoreAudioError&) {
        return std::nullopt;
    }
}

std::vector<AudioDevice> allDevices(AudioHardware& hardware) {
    std::vector<std::uint32_t> ids;
    try {
        ids = readIDListProperty(hardware, hal::kDevices, 0, hal::kSystemObject);
    } catch (const CoreAudioError&) {
        return {};
    }
    std::vector<AudioDevice> devices;
    for (const AudioObjectID id : ids) {
        // A device without a readable uid cannot be remembered or chosen, so it is not listed.
        if (auto device = deviceWithID(hardware, id)) {
            devices.push_back(std::move(*device));
        }
    }
    return devices;
}

std::vector<AudioDevice> inputDevices(AudioHardware& hardware) {
    return devicesWithStreams(hardware, hal::kScopeInput);
}

std::vector<AudioDevice> outputDevices(AudioHardware& hardware) {
    return devicesWithStreams(hardware, hal::kScopeOutput);
}

AudioObjectID defaultOutputDeviceID(AudioHardware& hardware) {
    return readProperty<AudioObjectID>(hardware, hal::kSystemObject,
                                       hal::globalAddress(hal::kDefaultOutputDevice));
}

std::optional<AudioDevice> defaultInputDevice(AudioHardware& hardware) {
    try {
        return deviceWithID(
            hardware, readProperty<AudioObjectID>(hardware, hal::kSystemObject,
                                                  hal::globalAddress(hal::kDefaultInputDevice)));
    } catch (const CoreAudioError&) {
        return std::nullopt;
    }
}

void setDefaultInputDevice(AudioHardware& hardware, AudioObjectID device) {
    writeDeviceProperty(hardware, device, hal::kDefaultInputDevice);
}

void setDefaultOutputDevice(AudioHardware& hardware, AudioObjectID device) {
    writeDeviceProperty(hardware, device, hal::kDefaultOutputDevice);
}

}  // namespace quorvane
