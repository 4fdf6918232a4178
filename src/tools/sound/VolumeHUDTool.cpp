#include "tools/sound/VolumeHUDTool.hpp"

#include "audio/CoreAudio+Helpers.hpp"
#include "audio/OutputVolume.hpp"
#include "input/InputServices.hpp"
#include "platform/EventField.hpp"

namespace quorvane {

VolumeHUDTool::VolumeHUDTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

void VolumeHUDTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::systemDefined},
                            [this](EventType, Event& event) { return handle(event); });
    lastError_ = tap_ ? std::string() : EventTap::refusedError("watch the volume keys");
    publish();
}

void VolumeHUDTool::stop() {
    tap_.reset();
    publish();
}

bool VolumeHUDTool::handle(Event& event) {
    const auto key = VolumeKeys::press(event.systemSubtype(), event.systemData1());
    if (!key) {
        return true;
    }
    const bool fine =
        (event.flags() & modifierFlag::mask) == (modifierFlag::option | modifierFlag::shift);
    return press(*key, fine);
}

bool VolumeHUDTool::press(const VolumeKeys::Press& key, bool fine) {
    AudioHardware& hardware = platform_.audioHardware;
    AudioObjectID device = 0;
    std::optional<float> volume;
    try {
        device = defaultOutputDeviceID(hardware);
        volume = outputVolume(hardware, device);
    } catch (const CoreAudioError&) {
    }
    if (!volume) {
        return true;  // no volume control here: the system says so in its own way
    }
    if (!key.down) {
        return false;  // its key down was ours
    }
    const VolumeKeys::Level now{*volume, outputMute(hardware, device).value_or(false)};
    const VolumeKeys::Level next = VolumeKeys::apply(key.key, fine, now);
    try {
        if (next.volume != now.volume) {
            setOutputVolume(hardware, device, next.volume);
        }
        if (next.muted != now.muted) {
            setOutputMute(hardware, device, next.muted);
        }
    } catch (const CoreAudioError& error) {
        lastError_ = "Couldn't change the volume: " + error.description();
        publish();
        return true;  // the system may still manage it
    }
    if (!lastError_.empty()) {
        lastError_.clear();
        publish();
    }
    platform_.input.hud.show(VolumeKeys::card(next), false, kCardDuration);
    return false;
}

}  // namespace quorvane
