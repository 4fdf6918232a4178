#pragma once
// The HID system's parameter keys read from the registry (IOHIDSystem).
#include <IOKit/IOKitLib.h>
#define kIOHIDSystemClass "IOHIDSystem"
#define kIOHIDParametersKey "HIDParameters"
