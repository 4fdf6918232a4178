#include "tools/sound/DeviceLockTool.hpp"

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "platform/Preferences.hpp"
#include "tools/sound/DeviceGuard.hpp"

namespace quorvane {

namespace {

std::string key(const char* prefix, const char* setting) {
    return std::string(prefix) + "." + setting;
}

}  // namespace

DeviceLockTool::DeviceLockTool(const ToolDescriptor& descriptor, const Platform& platform,
                               Role role)
    : descriptor_(descriptor), platform_(platform), role_(role) {
    lockedUID_ = platform_.preferences.string(key(prefix(), "deviceUID"));
    lockedName_ = platform_.preferences.string(key(prefix(), "deviceName")).value_or("");
}

DeviceLockTool::~DeviceLockTool() {
    stop();
}

const char* DeviceLockTool::prefix() const {
    return role_ == Role::output ? "outputLock" : "micLock";
}

std::vector<AudioDevice> DeviceLockTool::candidates() {
    return role_ == Role::output ? outputDevices(platform_.audioHardware)
                                 : inputDevices(platform_.audioHardware);
}

void DeviceLockTool::choose(const AudioDevice& device) {
    lockedUID_ = device.uid;
    lockedName_ = device.name;
    platform_.preferences.set(key(prefix(), "deviceUID"), device.uid);
    platform_.preferences.set(key(prefix(), "deviceName"), device.name);
    if (isActive()) {
        check();
    }
    publish();
}

void DeviceLockTool::start() {
    if (isActive()) {
        return;
    }
    const std::uint32_t defaultSelector =
        role_ == Role::output ? hal::kDefaultOutputDevice : hal::kDefaultInputDevice;
    // A switch away from the chosen device, and the chosen device coming back.
    for (const std::uint32_t selector : {defaultSelector, hal::kDevices}) {
        listeners_.push_back(
            std::make_unique<PropertyListener>(platform_.audioHardware, hal::kSystemObject,
                                               hal::globalAddress(selector), [this] { check(); }));
    }
    if (!lockedUID_) {
        // Turned on without a choice: the device in use now is the one to keep.
        if (const auto current = currentDefault()) {
            if (auto device = deviceWithID(platform_.audioHardware, *current)) {
                choose(*device);
            }
        }
    }
    check();
}

void DeviceLockTool::stop() {
    if (!isActive()) {
        return;
    }
    listeners_.clear();
    lastError_.reset();
    publish();
}

std::optional<AudioObjectID> DeviceLockTool::currentDefault() {
    const std::uint32_t selector =
        role_ == Role::output ? hal::kDefaultOutputDevice : hal::kDefaultInputDevice;
    try {
        return readProperty<AudioObjectID>(platform_.audioHardware, hal::kSystemObject,
                                           hal::globalAddress(selector));
    } catch (const CoreAudioError& error) {
        lastError_ = "Couldn't read the current device: " + error.description();
        return std::nullopt;
    }
}

void DeviceLockTool::check() {
    lastError_.reset();
    const auto current = currentDefault();
    if (!current) {
        // Without knowing the default, switching could fight a change the system is making.
        publish();
        return;
    }
    if (const auto device = DeviceGuard::restore(lockedUID_, candidates(), current)) {
        setDefault(*device);
    }
    publish();
}

void DeviceLockTool::setDefault(AudioObjectID device) {
    try {
        if (role_ == Role::output) {
            setDefaultOutputDevice(platform_.audioHardware, device);
        } else {
            setDefaultInputDevice(platform_.audioHardware, device);
        }
        ++restored_;
    } catch (const CoreAudioError& error) {
        lastError_ = "Couldn't switch back to " + lockedName_ + ": " + error.description();
    }
}

}  // namespace quorvane
