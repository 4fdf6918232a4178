#pragma once
// Power-management assertions. Written from Apple's documentation
// (developer.apple.com/documentation/iokit/<name>); looked up: IOPMAssertionCreateWithName,
// IOPMAssertionRelease, IOPMAssertionID, IOPMAssertionLevel, kIOPMAssertionLevelOn;
// IORegisterForSystemPower, IODeregisterForSystemPower, IOAllowPowerChange,
// IOServiceInterestCallback, IONotificationPortGetRunLoopSource, IONotificationPortDestroy,
// IOPMCopyRepeatingPowerEvents and the IOPMKeys.h keys it answers with.
#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

#include <IOKit/IOKitLib.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef kern_return_t IOReturn;
typedef uint32_t IOPMAssertionID;
typedef uint32_t IOPMAssertionLevel;
#define kIOPMAssertionLevelOn 255

#pragma clang arc_cf_code_audited begin
IOReturn IOPMAssertionCreateWithName(CFStringRef AssertionType, IOPMAssertionLevel AssertionLevel,
                                     CFStringRef AssertionName, IOPMAssertionID* AssertionID);
IOReturn IOPMAssertionRelease(IOPMAssertionID AssertionID);

typedef struct IONotificationPort* IONotificationPortRef;
typedef void (*IOServiceInterestCallback)(void* refcon, io_service_t service, uint32_t messageType,
                                          void* messageArgument);
io_connect_t IORegisterForSystemPower(void* refcon, IONotificationPortRef* thePortRef,
                                      IOServiceInterestCallback callback, io_object_t* notifier);
IOReturn IODeregisterForSystemPower(io_object_t* notifier);
IOReturn IOAllowPowerChange(io_connect_t kernelPort, intptr_t notificationID);
CFRunLoopSourceRef IONotificationPortGetRunLoopSource(IONotificationPortRef notify)
    __attribute__((cf_returns_not_retained));
void IONotificationPortDestroy(IONotificationPortRef notify);
CFDictionaryRef IOPMCopyRepeatingPowerEvents(void) __attribute__((cf_returns_retained));
#pragma clang arc_cf_code_audited end

#define kIOPMRepeatingPowerOnKey "RepeatingPowerOn"
#define kIOPMRepeatingPowerOffKey "RepeatingPowerOff"
#define kIOPMPowerEventTimeKey "time"
#define kIOPMDaysOfWeekKey "weekdays"
#define kIOPMPowerEventTypeKey "eventtype"

#ifdef __cplusplus
}
#endif
