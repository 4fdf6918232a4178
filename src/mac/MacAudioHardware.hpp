#pragma once

#include <memory>

#include "platform/AudioHardware.hpp"

namespace quorvane {

// The Core Audio HAL, call for call. Listener blocks are queued on the main dispatch queue and
// kept so the very same block is removed; a block already queued when its listener is removed
// does nothing. Tap descriptions are kept until their tap is destroyed. Starting and stopping
// devices and destroying procedures, aggregate devices and taps run in order on a serial
// queue of their own, since starting an aggregate device whose tap waits for audio can take
// long and must never hold up the main thread. Main thread only, except
// for the I/O procedures, which the HAL runs on its real-time thread.
class MacAudioHardware final : public AudioHardware {
public:
    MacAudioHardware();
    ~MacAudioHardware() override;

    OSStatus getPropertyDataSize(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::uint32_t& outSize) override;
    OSStatus getPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t& ioSize, void* outData) override;
    OSStatus getStringPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                   std::optional<std::string>& outText) override;
    OSStatus setPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t size, const void* data) override;
    OSStatus addPropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::function<void()> handler, ListenerID& outListener) override;
    OSStatus removePropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                    ListenerID listener) override;
    OSStatus createProcessTap(const ProcessTapDescription& description,
                              AudioObjectID& outTapID) override;
    OSStatus destroyProcessTap(AudioObjectID tap) override;
    OSStatus createAggregateDevice(const PreferenceValue::Dictionary& description,
                                   AudioObjectID& outDeviceID) override;
    OSStatus destroyAggregateDevice(AudioObjectID device) override;
    OSStatus createIOProcID(AudioObjectID device, IOProc proc, std::shared_ptr<void> clientData,
                            IOProcID& outProcID) override;
    OSStatus destroyIOProcID(AudioObjectID device, IOProcID proc) override;
    OSStatus startDevice(AudioObjectID device, IOProcID proc,
                         std::function<void(OSStatus)> failedLater) override;
    OSStatus stopDevice(AudioObjectID device, IOProcID proc) override;

private:
    // Holds Objective-C objects, so it is defined in the .mm file only.
    struct Registrations;
    std::unique_ptr<Registrations> registrations_;
};

}  // namespace quorvane
