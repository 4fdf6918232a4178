#include "mac/MacPorts.hpp"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <utility>

#include "audio/AudioStreamFormat.hpp"
#include "mac/CFRef.hpp"
#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"
#include "mac/MacViews.hpp"

namespace quorvane {

// The portable buffer view and stream format are the HAL's own layouts, so the I/O procedure
// reads and writes the HAL's buffers in place and a format read fills the portable struct.
static_assert(sizeof(AudioBufferView) == sizeof(AudioBuffer));
static_assert(offsetof(AudioBufferView, numberChannels) == offsetof(AudioBuffer, mNumberChannels));
static_assert(offsetof(AudioBufferView, dataByteSize) == offsetof(AudioBuffer, mDataByteSize));
static_assert(offsetof(AudioBufferView, data) == offsetof(AudioBuffer, mData));
static_assert(sizeof(AudioStreamFormat) == sizeof(AudioStreamBasicDescription));
static_assert(offsetof(AudioStreamFormat, formatFlags) ==
              offsetof(AudioStreamBasicDescription, mFormatFlags));
static_assert(offsetof(AudioStreamFormat, channelsPerFrame) ==
              offsetof(AudioStreamBasicDescription, mChannelsPerFrame));
static_assert(sizeof(AudioHardware::IOProcID) >= sizeof(AudioDeviceIOProcID));
static_assert(static_cast<std::int64_t>(ProcessTapDescription::MuteBehavior::mutedWhenTapped) ==
              CATapMutedWhenTapped);

namespace {

::AudioObjectPropertyAddress halAddress(const AudioPropertyAddress& address) {
    return {address.selector, address.scope, address.element};
}

// The HAL's buffers in place; none for a list the HAL did not give.
template <typename View, typename List>
std::span<View> buffers(List* list) {
    if (!list) {
        return {};
    }
    return {reinterpret_cast<View*>(list->mBuffers), list->mNumberBuffers};
}

// The Core Audio HAL, call for call. Listener blocks are queued on the main dispatch queue and
// kept so the very same block is removed; a block already queued when its listener is removed
// does nothing. Tap descriptions are kept until their tap is destroyed. Starting and stopping
// devices and destroying procedures, aggregate devices and taps run in order on a serial
// queue of their own, since starting an aggregate device whose tap waits for audio can take
// long and must never hold up the main thread. Main thread only, except
// for the I/O procedures, which the HAL runs on its real-time thread.
class MacAudioHardware final : public AudioHardware {
public:
    OSStatus getPropertyDataSize(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::uint32_t& outSize) override {
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        UInt32 size = 0;
        const OSStatus status = AudioObjectGetPropertyDataSize(object, &hal, 0, nullptr, &size);
        outSize = size;
        return status;
    }

    OSStatus getPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t& ioSize, void* outData) override {
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        UInt32 size = ioSize;
        const OSStatus status =
            AudioObjectGetPropertyData(object, &hal, 0, nullptr, &size, outData);
        ioSize = size;
        return status;
    }

    OSStatus getStringPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                   std::optional<std::string>& outText) override {
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        CFStringRef text = nullptr;
        UInt32 size = sizeof(text);
        const OSStatus status = AudioObjectGetPropertyData(object, &hal, 0, nullptr, &size, &text);
        // The HAL hands over its string at +1.
        const auto owned = CFRef<CFStringRef>::adopt(text);
        if (status == noErr) {
            outText = owned ? std::optional(utf8String(owned.get())) : std::nullopt;
        }
        return status;
    }

    OSStatus setPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t size, const void* data) override {
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        return AudioObjectSetPropertyData(object, &hal, 0, nullptr, size, data);
    }

    OSStatus addPropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::function<void()> handler, ListenerID& outListener) override {
        auto listener = std::make_shared<Listener>(std::move(handler));
        AudioObjectPropertyListenerBlock block = ^(UInt32, const ::AudioObjectPropertyAddress*) {
          assert([NSThread isMainThread]);
          Listener::run(listener);
        };
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        const OSStatus status =
            AudioObjectAddPropertyListenerBlock(object, &hal, dispatch_get_main_queue(), block);
        if (status == noErr) {
            outListener = nextListener_++;
            listeners_.emplace(outListener, Entry{block, listener});
        }
        return status;
    }

    OSStatus removePropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                    ListenerID listener) override {
        const auto found = listeners_.find(listener);
        if (found == listeners_.end()) {
            return kAudioHardwareIllegalOperationError;
        }
        // A notification already queued on the main queue must not reach a handler whose owner is
        // going away.
        found->second.listener->cancelled = true;
        const ::AudioObjectPropertyAddress hal = halAddress(address);
        const OSStatus status = AudioObjectRemovePropertyListenerBlock(
            object, &hal, dispatch_get_main_queue(), found->second.block);
        listeners_.erase(found);
        return status;
    }

    OSStatus createProcessTap(const ProcessTapDescription& description,
                              AudioObjectID& outTapID) override {
        @autoreleasepool {
            NSMutableArray<NSNumber*>* processes = [NSMutableArray array];
            for (const AudioObjectID process : description.processes) {
                [processes addObject:@(process)];
            }
            CATapDescription* tap =
                description.kind == ProcessTapDescription::Kind::stereoMixdownOfProcesses
                    ? [[CATapDescription alloc] initStereoMixdownOfProcesses:processes]
                    : [[CATapDescription alloc] initStereoGlobalTapButExcludeProcesses:processes];
            // unconfirmed: check on a Mac first (-[NSUUID initWithUUIDString:] is not in the fact
            // sheet; Apple's reference says it gives nil for text that is not a UUID).
            NSUUID* uuid =
                [[NSUUID alloc] initWithUUIDString:makeNSString(description.uuid.text())];
            NSString* name = makeNSString(description.name);
            if (!tap || !uuid || !name) {
                return kAudioHardwareIllegalOperationError;
            }
            tap.UUID = uuid;
            tap.name = name;
            tap.privateTap = description.isPrivate;
            tap.muteBehavior = static_cast<CATapMuteBehavior>(description.muteBehavior);
            AudioObjectID tapID = kAudioObjectUnknown;
            const OSStatus status = AudioHardwareCreateProcessTap(tap, &tapID);
            if (status == noErr) {
                outTapID = tapID;
                taps_[tapID] = tap;
            }
            return status;
        }
    }

    OSStatus destroyProcessTap(AudioObjectID tap) override {
        // Kept alive until the tap is gone, then released on the main thread where it was made.
        CATapDescription* description = taps_[tap];
        taps_.erase(tap);
        dispatch_async(control_, ^{
          AudioHardwareDestroyProcessTap(tap);
          dispatch_async(dispatch_get_main_queue(), ^{
            (void)description;
          });
        });
        // Teardown ignores statuses; the request is what succeeded.
        return noErr;
    }

    OSStatus createAggregateDevice(const PreferenceValue::Dictionary& description,
                                   AudioObjectID& outDeviceID) override {
        const CFRef<CFPropertyListRef> dictionary = toPropertyList(PreferenceValue(description));
        if (!dictionary) {
            return kAudioHardwareIllegalOperationError;
        }
        AudioObjectID device = kAudioObjectUnknown;
        const OSStatus status = AudioHardwareCreateAggregateDevice(
            static_cast<CFDictionaryRef>(dictionary.get()), &device);
        if (status == noErr) {
            outDeviceID = device;
        }
        return status;
    }

    OSStatus destroyAggregateDevice(AudioObjectID device) override {
        dispatch_async(control_, ^{
          AudioHardwareDestroyAggregateDevice(device);
        });
        return noErr;
    }

    OSStatus createIOProcID(AudioObjectID device, IOProc proc, std::shared_ptr<void> clientData,
                            IOProcID& outProcID) override {
        // The block holds its own reference, so the memory the procedure works on lives until the
        // HAL has released the block after AudioDeviceDestroyIOProcID, wherever that runs.
        const std::shared_ptr<void> context = std::move(clientData);
        // Runs on the HAL's real-time thread: it only wraps the HAL's buffer lists in views.
        AudioDeviceIOBlock block =
            ^(const AudioTimeStamp*, const AudioBufferList* inputData, const AudioTimeStamp*,
              AudioBufferList* outputData, const AudioTimeStamp*) {
              proc(context.get(), buffers<const AudioBufferView>(inputData),
                   buffers<AudioBufferView>(outputData));
            };
        AudioDeviceIOProcID procID = nullptr;
        // No dispatch queue: the HAL calls the block directly on its I/O thread.
        const OSStatus status = AudioDeviceCreateIOProcIDWithBlock(&procID, device, nullptr, block);
        if (status == noErr) {
            outProcID = reinterpret_cast<IOProcID>(procID);
        }
        return status;
    }

    OSStatus destroyIOProcID(AudioObjectID device, IOProcID proc) override {
        dispatch_async(control_, ^{
          AudioDeviceDestroyIOProcID(device, reinterpret_cast<AudioDeviceIOProcID>(proc));
        });
        return noErr;
    }

    // unconfirmed: check on a Mac first. With "tapautostart" set, AudioDeviceStart on an aggregate
    // device is believed to wait until its tap delivers audio; it runs on the control queue so the
    // main thread never waits with it. A failure there goes back to the main thread.
    OSStatus startDevice(AudioObjectID device, IOProcID proc,
                         std::function<void(OSStatus)> failedLater) override {
        auto report = std::make_shared<std::function<void(OSStatus)>>(std::move(failedLater));
        dispatch_async(control_, ^{
          const OSStatus status =
              AudioDeviceStart(device, reinterpret_cast<AudioDeviceIOProcID>(proc));
          if (status != noErr && *report) {
              runSoon(^{
                (*report)(status);
              });
          }
        });
        return noErr;
    }

    OSStatus stopDevice(AudioObjectID device, IOProcID proc) override {
        dispatch_async(control_, ^{
          AudioDeviceStop(device, reinterpret_cast<AudioDeviceIOProcID>(proc));
        });
        return noErr;
    }

private:
    // Shared by a listener block and its registration.
    using Listener = CancellableAction<>;
    struct Entry {
        AudioObjectPropertyListenerBlock block;
        std::shared_ptr<Listener> listener;
    };
    std::map<ListenerID, Entry> listeners_;
    ListenerID nextListener_ = 1;
    std::map<AudioObjectID, CATapDescription*> taps_;
    // Serial: a stop never overtakes the start before it, and a procedure is destroyed only
    // after its device was stopped.
    dispatch_queue_t control_ =
        dispatch_queue_create("com.quorvane.app.audio-control", DISPATCH_QUEUE_SERIAL);
};

}  // namespace

std::unique_ptr<AudioHardware> makeMacAudioHardware() {
    return std::make_unique<MacAudioHardware>();
}

}  // namespace quorvane
