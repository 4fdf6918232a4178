#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/AudioBufferView.hpp"
#include "platform/AudioPropertyAddress.hpp"
#include "platform/PreferenceValue.hpp"
#include "platform/ProcessTapDescription.hpp"

namespace quorvane {

// The Core Audio hardware abstraction layer, one operation per HAL call. Every call answers the
// HAL's status (0 is success); what a failure means is decided by the callers. Main thread only,
// except for the I/O procedure, which the HAL runs on its own real-time thread.
class AudioHardware {
public:
    // Names one listener registration, so that exactly the listener that was added is removed.
    using ListenerID = std::uint64_t;
    // The HAL's AudioDeviceIOProcID, as a number.
    using IOProcID = std::uintptr_t;
    // Runs once per I/O cycle on the real-time thread with the aggregate device's input and
    // output buffers. It must not allocate, lock or block.
    using IOProc = void (*)(void* clientData, std::span<const AudioBufferView> input,
                            std::span<AudioBufferView> output);

    virtual ~AudioHardware() = default;

    // AudioObjectGetPropertyDataSize.
    virtual OSStatus getPropertyDataSize(AudioObjectID object, const AudioPropertyAddress& address,
                                         std::uint32_t& outSize) = 0;
    // AudioObjectGetPropertyData into the caller's buffer: `ioSize` is the buffer's size on entry
    // and the bytes written on return.
    virtual OSStatus getPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                     std::uint32_t& ioSize, void* outData) = 0;
    // AudioObjectGetPropertyData of a property whose data is one CFString, converted to UTF-8;
    // nothing when the HAL answered a NULL string.
    virtual OSStatus getStringPropertyData(AudioObjectID object,
                                           const AudioPropertyAddress& address,
                                           std::optional<std::string>& outText) = 0;
    // AudioObjectSetPropertyData.
    virtual OSStatus setPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                     std::uint32_t size, const void* data) = 0;

    // AudioObjectAddPropertyListenerBlock on the main queue. The handler runs on the main thread,
    // and never after the listener was removed.
    virtual OSStatus addPropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                         std::function<void()> handler,
                                         ListenerID& outListener) = 0;
    // AudioObjectRemovePropertyListenerBlock with the very block that was added.
    virtual OSStatus removePropertyListener(AudioObjectID object,
                                            const AudioPropertyAddress& address,
                                            ListenerID listener) = 0;

    // AudioHardwareCreateProcessTap / AudioHardwareDestroyProcessTap.
    virtual OSStatus createProcessTap(const ProcessTapDescription& description,
                                      AudioObjectID& outTapID) = 0;
    virtual OSStatus destroyProcessTap(AudioObjectID tap) = 0;

    // AudioHardwareCreateAggregateDevice from a description dictionary (a property list) /
    // AudioHardwareDestroyAggregateDevice.
    virtual OSStatus createAggregateDevice(const PreferenceValue::Dictionary& description,
                                           AudioObjectID& outDeviceID) = 0;
    virtual OSStatus destroyAggregateDevice(AudioObjectID device) = 0;

    // AudioDeviceCreateIOProcIDWithBlock with no dispatch queue, so the procedure runs on the
    // HAL's real-time thread; the block calls `proc` with `clientData`, and holds it until the
    // procedure is destroyed, which may happen after the caller has let go.
    // AudioDeviceDestroyIOProcID undoes it.
    virtual OSStatus createIOProcID(AudioObjectID device, IOProc proc,
                                    std::shared_ptr<void> clientData, IOProcID& outProcID) = 0;
    virtual OSStatus destroyIOProcID(AudioObjectID device, IOProcID proc) = 0;

    // AudioDeviceStart / AudioDeviceStop. Neither may block the main thread: starting an
    // aggregate device whose tap waits for audio can take long, so an implementation may carry
    // out starting, stopping and the destruction of procedures, aggregate devices and taps
    // later, in the order they were asked for, and answer success for the request. A start
    // carried out later that fails calls `failedLater` with its status on the main thread.
    virtual OSStatus startDevice(AudioObjectID device, IOProcID proc,
                                 std::function<void(OSStatus)> failedLater) = 0;
    virtual OSStatus stopDevice(AudioObjectID device, IOProcID proc) = 0;
};

}  // namespace quorvane
