#pragma once
// The power-source API. Written from Apple's documentation
// (developer.apple.com/documentation/iokit/<name>); looked up: IOPSCopyPowerSourcesInfo,
// IOPSCopyPowerSourcesList, IOPSGetPowerSourceDescription, IOPSNotificationCreateRunLoopSource,
// IOPowerSourceCallbackType.
#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*IOPowerSourceCallbackType)(void* context);

#pragma clang arc_cf_code_audited begin
CFTypeRef IOPSCopyPowerSourcesInfo(void) __attribute__((cf_returns_retained));
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob) __attribute__((cf_returns_retained));
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef ps)
    __attribute__((cf_returns_not_retained));
CFRunLoopSourceRef IOPSNotificationCreateRunLoopSource(IOPowerSourceCallbackType callback,
                                                       void* context)
    __attribute__((cf_returns_retained));
#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif
