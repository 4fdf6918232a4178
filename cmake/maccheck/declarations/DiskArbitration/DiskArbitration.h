#pragma once
// Disk Arbitration. Written from Apple's documentation
// (developer.apple.com/documentation/diskarbitration/<name>); looked up: DASessionCreate,
// DASessionScheduleWithRunLoop, DASessionUnscheduleFromRunLoop, DADiskCreateFromBSDName,
// DADiskCreateFromVolumePath, DADiskCopyDescription, DADiskGetBSDName, DADiskMount,
// DADiskUnmount, DADiskMountCallback, DADiskUnmountCallback, DADissenterGetStatus and the
// description keys.
#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct __DASession* DASessionRef;
typedef struct __DADisk* DADiskRef;
typedef const struct __DADissenter* DADissenterRef;
typedef int DAReturn;
typedef UInt32 DADiskMountOptions;
typedef UInt32 DADiskUnmountOptions;
enum { kDADiskMountOptionDefault = 0 };
enum { kDADiskUnmountOptionDefault = 0 };
typedef void (*DADiskMountCallback)(DADiskRef disk, DADissenterRef dissenter, void* context);
typedef void (*DADiskUnmountCallback)(DADiskRef disk, DADissenterRef dissenter, void* context);

extern const CFStringRef kDADiskDescriptionVolumeNameKey;
extern const CFStringRef kDADiskDescriptionVolumePathKey;
extern const CFStringRef kDADiskDescriptionVolumeNetworkKey;
extern const CFStringRef kDADiskDescriptionVolumeMountableKey;
extern const CFStringRef kDADiskDescriptionDeviceInternalKey;

#pragma clang arc_cf_code_audited begin
DASessionRef DASessionCreate(CFAllocatorRef allocator) __attribute__((cf_returns_retained));
void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                  CFStringRef runLoopMode);
void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                    CFStringRef runLoopMode);
DADiskRef DADiskCreateFromBSDName(CFAllocatorRef allocator, DASessionRef session, const char* name)
    __attribute__((cf_returns_retained));
DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef allocator, DASessionRef session, CFURLRef path)
    __attribute__((cf_returns_retained));
CFDictionaryRef DADiskCopyDescription(DADiskRef disk) __attribute__((cf_returns_retained));
const char* DADiskGetBSDName(DADiskRef disk);
void DADiskMount(DADiskRef disk, CFURLRef path, DADiskMountOptions options,
                 DADiskMountCallback callback, void* context);
void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options, DADiskUnmountCallback callback,
                   void* context);
DAReturn DADissenterGetStatus(DADissenterRef dissenter);
#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif
