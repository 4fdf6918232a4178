#pragma once

#include <functional>
#include "audio/AudioCodes.hpp"
#include "platform/AudioHardware.hpp"

namespace quorvane {

// Outside macOS there is no audio hardware layer: every call answers "unsupported", so device
// lists are empty, no process plays and no tap can be built.
class PortableAudioHardware : public AudioHardware {
public:
    static constexpr OSStatus kStatus = hal::kUnsupportedOperationError;

    OSStatus getPropertyDataSize(AudioObjectID, const AudioPropertyAddress&,
                                 std::uint32_t&) override {
        return kStatus;
    }
    OSStatus getPropertyData(AudioObjectID, const AudioPropertyAddress&, std::uint32_t&,
                             void*) override {
        return kStatus;
    }
    OSStatus getStringPropertyData(AudioObjectID, const AudioPropertyAddress&,
                                   std::optional<std::string>&) override {
        return kStatus;
    }
    OSStatus setPropertyData(AudioObjectID, const AudioPropertyAddress&, std::uint32_t,
                             const void*) override {
        return kStatus;
    }
    OSStatus addPropertyListener(AudioObjectID, const AudioPropertyAddress&, std::function<void()>,
                                 ListenerID&) override {
        return kStatus;
    }
    OSStatus removePropertyListener(AudioObjectID, const AudioPropertyAddress&,
                                    ListenerID) override {
        return kStatus;
    }
    OSStatus createProcessTap(const ProcessTapDescription&, AudioObjectID&) override {
        return kStatus;
    }
    OSStatus destroyProcessTap(AudioObjectID) override { return kStatus; }
    OSStatus createAggregateDevice(const PreferenceValue::Dictionary&, AudioObjectID&) override {
        return kStatus;
    }
    OSStatus destroyAggregateDevice(AudioObjectID) override { return kStatus; }
    OSStatus createIOProcID(AudioObjectID, IOProc, std::shared_ptr<void>, IOProcID&) override {
        return kStatus;
    }
    OSStatus destroyIOProcID(AudioObjectID, IOProcID) override { return kStatus; }
    OSStatus startDevice(AudioObjectID, IOProcID, std::function<void(OSStatus)>) override {
        return kStatus;
    }
    OSStatus stopDevice(AudioObjectID, IOProcID) override { return kStatus; }
};

}  // namespace quorvane
