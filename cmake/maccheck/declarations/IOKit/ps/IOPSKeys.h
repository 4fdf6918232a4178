#pragma once
// Keys of a power source's description: C strings, wrapped in CFSTR or @ before use. Written
// from Apple's documentation (developer.apple.com/documentation/iokit/iopskeys_h).
#define kIOPSNameKey "Name"
#define kIOPSTypeKey "Type"
#define kIOPSPowerSourceStateKey "Power Source State"
#define kIOPSIsPresentKey "Is Present"
#define kIOPSIsChargingKey "Is Charging"
#define kIOPSCurrentCapacityKey "Current Capacity"
#define kIOPSMaxCapacityKey "Max Capacity"
#define kIOPSInternalBatteryType "InternalBattery"
#define kIOPSACPowerValue "AC Power"
