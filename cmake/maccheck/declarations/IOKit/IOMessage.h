#pragma once
// The root power domain's messages. Written from Apple's documentation
// (developer.apple.com/documentation/iokit/iomessage_h): iokit_common_msg(x) is
// 0xE0000000 | x.
#include <IOKit/IOKitLib.h>
#define kIOMessageCanSystemSleep 0xE0000270
#define kIOMessageSystemWillSleep 0xE0000280
#define kIOMessageSystemWillNotSleep 0xE0000290
#define kIOMessageSystemHasPoweredOn 0xE0000300
#define kIOMessageSystemWillPowerOn 0xE0000320
