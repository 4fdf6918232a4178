#include "audio/OwnProcessObjects.hpp"

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"

namespace quorvane {

std::vector<AudioObjectID> processObjectsOf(AudioHardware& hardware, int pid) {
    std::vector<AudioObjectID> objects;
    try {
        for (const AudioObjectID object :
             readIDListProperty(hardware, hal::kProcessObjectList, 0, hal::kSystemObject)) {
            try {
                if (readProperty<std::int32_t>(hardware, object,
                                               hal::globalAddress(hal::kProcessPID)) == pid) {
                    objects.push_back(object);
                }
            } catch (const CoreAudioError&) {
            }
        }
    } catch (const CoreAudioError&) {
    }
    return objects;
}

}  // namespace quorvane
