#pragma once
// The Core Audio HAL as the macOS layer uses it: property access and listener blocks, aggregate
// devices, IO blocks, and the base types (CoreAudioTypes). Written from Apple's documentation
// (developer.apple.com/documentation/coreaudio/<name>, /coreaudiotypes/<name>); looked up for
// this check: AudioObjectAddPropertyListenerBlock, AudioDeviceCreateIOProcIDWithBlock.
// Property selectors are four-character codes the portable code names itself.
#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef UInt32 AudioObjectID;
typedef UInt32 AudioObjectPropertySelector;
typedef UInt32 AudioObjectPropertyScope;
typedef UInt32 AudioObjectPropertyElement;
typedef UInt32 AudioFormatID;
typedef UInt32 AudioFormatFlags;

struct AudioObjectPropertyAddress {
    AudioObjectPropertySelector mSelector;
    AudioObjectPropertyScope mScope;
    AudioObjectPropertyElement mElement;
};
typedef struct AudioObjectPropertyAddress AudioObjectPropertyAddress;

struct AudioBuffer {
    UInt32 mNumberChannels;
    UInt32 mDataByteSize;
    void* _Nullable mData;
};
typedef struct AudioBuffer AudioBuffer;
struct AudioBufferList {
    UInt32 mNumberBuffers;
    AudioBuffer mBuffers[1];
};
typedef struct AudioBufferList AudioBufferList;

struct SMPTETime {
    SInt16 mSubframes;
    SInt16 mSubframeDivisor;
    UInt32 mCounter;
    UInt32 mType;
    UInt32 mFlags;
    SInt16 mHours;
    SInt16 mMinutes;
    SInt16 mSeconds;
    SInt16 mFrames;
};
typedef struct SMPTETime SMPTETime;
struct AudioTimeStamp {
    Float64 mSampleTime;
    UInt64 mHostTime;
    Float64 mRateScalar;
    UInt64 mWordClockTime;
    SMPTETime mSMPTETime;
    UInt32 mFlags;
    UInt32 mReserved;
};
typedef struct AudioTimeStamp AudioTimeStamp;

struct AudioStreamBasicDescription {
    Float64 mSampleRate;
    AudioFormatID mFormatID;
    AudioFormatFlags mFormatFlags;
    UInt32 mBytesPerPacket;
    UInt32 mFramesPerPacket;
    UInt32 mBytesPerFrame;
    UInt32 mChannelsPerFrame;
    UInt32 mBitsPerChannel;
    UInt32 mReserved;
};
typedef struct AudioStreamBasicDescription AudioStreamBasicDescription;

typedef QV_CF_ENUM(int, AudioObjectSystemObjectValue){kAudioObjectSystemObject = 1};
typedef QV_CF_ENUM(AudioObjectID, AudioObjectUnknownValue){kAudioObjectUnknown = 0};
typedef QV_CF_ENUM(AudioObjectPropertyElement,
                   AudioObjectElementValue){kAudioObjectPropertyElementMain = 0};
typedef QV_CF_ENUM(OSStatus, AudioHardwareErrorValue){
    kAudioHardwareNoError = 0,
    kAudioHardwareNotRunningError = 'stop',
    kAudioHardwareUnspecifiedError = 'what',
    kAudioHardwareUnknownPropertyError = 'who?',
    kAudioHardwareBadPropertySizeError = '!siz',
    kAudioHardwareIllegalOperationError = 'nope',
    kAudioHardwareBadObjectError = '!obj',
    kAudioHardwareBadDeviceError = '!dev',
    kAudioHardwareBadStreamError = '!str',
    kAudioHardwareUnsupportedOperationError = 'unop',
    kAudioDevicePermissionsError = '!hog',
};

typedef void (^AudioObjectPropertyListenerBlock)(UInt32 inNumberAddresses,
                                                 const AudioObjectPropertyAddress* inAddresses);
typedef OSStatus (*AudioObjectPropertyListenerProc)(AudioObjectID inObjectID,
                                                    UInt32 inNumberAddresses,
                                                    const AudioObjectPropertyAddress* inAddresses,
                                                    void* _Nullable inClientData);

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID inObjectID,
                                        const AudioObjectPropertyAddress* inAddress,
                                        UInt32 inQualifierDataSize,
                                        const void* _Nullable inQualifierData, UInt32* outDataSize);
OSStatus AudioObjectGetPropertyData(AudioObjectID inObjectID,
                                    const AudioObjectPropertyAddress* inAddress,
                                    UInt32 inQualifierDataSize,
                                    const void* _Nullable inQualifierData, UInt32* ioDataSize,
                                    void* outData);
OSStatus AudioObjectSetPropertyData(AudioObjectID inObjectID,
                                    const AudioObjectPropertyAddress* inAddress,
                                    UInt32 inQualifierDataSize,
                                    const void* _Nullable inQualifierData, UInt32 inDataSize,
                                    const void* inData);
Boolean AudioObjectHasProperty(AudioObjectID inObjectID,
                               const AudioObjectPropertyAddress* inAddress);
OSStatus AudioObjectAddPropertyListener(AudioObjectID inObjectID,
                                        const AudioObjectPropertyAddress* inAddress,
                                        AudioObjectPropertyListenerProc inListener,
                                        void* _Nullable inClientData);
OSStatus AudioObjectRemovePropertyListener(AudioObjectID inObjectID,
                                           const AudioObjectPropertyAddress* inAddress,
                                           AudioObjectPropertyListenerProc inListener,
                                           void* _Nullable inClientData);
OSStatus AudioObjectAddPropertyListenerBlock(AudioObjectID inObjectID,
                                             const AudioObjectPropertyAddress* inAddress,
                                             dispatch_queue_t _Nullable inDispatchQueue,
                                             AudioObjectPropertyListenerBlock inListener);
OSStatus AudioObjectRemovePropertyListenerBlock(AudioObjectID inObjectID,
                                                const AudioObjectPropertyAddress* inAddress,
                                                dispatch_queue_t _Nullable inDispatchQueue,
                                                AudioObjectPropertyListenerBlock inListener);

OSStatus AudioHardwareCreateAggregateDevice(CFDictionaryRef inDescription,
                                            AudioObjectID* outDeviceID);
OSStatus AudioHardwareDestroyAggregateDevice(AudioObjectID inDeviceID);

typedef OSStatus (*AudioDeviceIOProc)(AudioObjectID inDevice, const AudioTimeStamp* inNow,
                                      const AudioBufferList* inInputData,
                                      const AudioTimeStamp* inInputTime,
                                      AudioBufferList* outOutputData,
                                      const AudioTimeStamp* inOutputTime,
                                      void* _Nullable inClientData);
typedef AudioDeviceIOProc AudioDeviceIOProcID;
typedef void (^AudioDeviceIOBlock)(const AudioTimeStamp* inNow, const AudioBufferList* inInputData,
                                   const AudioTimeStamp* inInputTime,
                                   AudioBufferList* outOutputData,
                                   const AudioTimeStamp* inOutputTime);
OSStatus AudioDeviceCreateIOProcID(AudioObjectID inDevice, AudioDeviceIOProc inProc,
                                   void* _Nullable inClientData,
                                   AudioDeviceIOProcID _Nullable* _Nonnull outIOProcID);
OSStatus AudioDeviceCreateIOProcIDWithBlock(AudioDeviceIOProcID _Nullable* _Nonnull outIOProcID,
                                            AudioObjectID inDevice,
                                            dispatch_queue_t _Nullable inDispatchQueue,
                                            AudioDeviceIOBlock inIOBlock);
OSStatus AudioDeviceDestroyIOProcID(AudioObjectID inDevice, AudioDeviceIOProcID inIOProcID);
OSStatus AudioDeviceStart(AudioObjectID inDevice, AudioDeviceIOProcID _Nullable inProcID);
OSStatus AudioDeviceStop(AudioObjectID inDevice, AudioDeviceIOProcID _Nullable inProcID);

#ifdef __cplusplus
}
#endif

// Aggregate-device description keys are C string literals.
#define kAudioAggregateDeviceNameKey "name"
#define kAudioAggregateDeviceUIDKey "uid"
#define kAudioAggregateDeviceMainSubDeviceKey "master"
#define kAudioAggregateDeviceClockDeviceKey "clock"
#define kAudioAggregateDeviceIsPrivateKey "private"
#define kAudioAggregateDeviceIsStackedKey "stacked"
#define kAudioAggregateDeviceTapAutoStartKey "tapautostart"
#define kAudioAggregateDeviceSubDeviceListKey "subdevices"
#define kAudioAggregateDeviceTapListKey "taps"
#define kAudioSubTapUIDKey "uid"
#define kAudioSubTapDriftCompensationKey "drift"
#define kAudioSubDeviceUIDKey "uid"
