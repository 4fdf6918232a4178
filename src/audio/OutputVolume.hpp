#pragma once

#include <optional>

#include "audio/CoreAudioError.hpp"
#include "platform/AudioHardware.hpp"

namespace quorvane {

// The volume and mute of one output device, as the volume keys change them: the device's
// virtual main volume (0 to 1) and its main mute. Reads answer nothing when the device has no
// such control (a display's speakers over HDMI); writes throw CoreAudioError.
std::optional<float> outputVolume(AudioHardware& hardware, AudioObjectID device);
void setOutputVolume(AudioHardware& hardware, AudioObjectID device, float volume);
std::optional<bool> outputMute(AudioHardware& hardware, AudioObjectID device);
void setOutputMute(AudioHardware& hardware, AudioObjectID device, bool muted);

}  // namespace quorvane
