#pragma once
// Process taps (macOS 14.2), Objective-C only as on a Mac. Written from Apple's documentation;
// looked up: AudioHardwareCreateProcessTap(_:_:), AudioHardwareDestroyProcessTap.
#ifdef __OBJC__
#include <CoreAudio/CoreAudio.h>
@class CATapDescription;
#ifdef __cplusplus
extern "C" {
#endif
OSStatus AudioHardwareCreateProcessTap(CATapDescription* inDescription, AudioObjectID* outTapID);
OSStatus AudioHardwareDestroyProcessTap(AudioObjectID inTapID);
#ifdef __cplusplus
}
#endif
#endif
