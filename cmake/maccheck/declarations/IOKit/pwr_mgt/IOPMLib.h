#pragma once
// Power-management assertions. Written from Apple's documentation
// (developer.apple.com/documentation/iokit/<name>); looked up: IOPMAssertionCreateWithName,
// IOPMAssertionRelease, IOPMAssertionID, IOPMAssertionLevel, kIOPMAssertionLevelOn.
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
#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif
