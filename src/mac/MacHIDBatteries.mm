#include "mac/MacPorts.hpp"

#include <utility>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// Releases a registry object IOKit handed over, however the loop ends.
struct RegistryObject {
    io_object_t object;
    ~RegistryObject() {
        if (object != 0) {
            IOObjectRelease(object);
        }
    }
};

// The properties a battery reading is made of, those the entry has.
PreferenceValue::Dictionary batteryProperties(io_registry_entry_t entry) {
    PreferenceValue::Dictionary properties;
    for (const char* name : {"BatteryPercent", "Product", "SerialNumber", "DeviceAddress"}) {
        const auto value = CFRef<CFTypeRef>::adopt(IORegistryEntryCreateCFProperty(
            entry, makeCFString(name).get(), kCFAllocatorDefault, 0));
        if (auto converted = fromPropertyList(value.get())) {
            properties.emplace(name, std::move(*converted));
        }
    }
    return properties;
}

// The I/O registry's HID devices that publish their battery.
class MacHIDBatteries final : public HIDBatteries {
public:
    std::vector<HIDBatteryReading> readings() override {
        std::vector<HIDBatteryReading> readings;
        // unconfirmed: check on a Mac first. Apple's Bluetooth mice, keyboards and trackpads are
        // known to publish "BatteryPercent" on their AppleDeviceManagementHIDEventService entry;
        // other devices on their IOHIDDevice. Both classes are read; the list drops the doubles.
        for (const char* className : {"AppleDeviceManagementHIDEventService", "IOHIDDevice"}) {
            io_iterator_t iterator = 0;
            // IOServiceMatching's dictionary is consumed by the call, whatever it answers.
            if (IOServiceGetMatchingServices(kIOMainPortDefault, IOServiceMatching(className),
                                             &iterator) != KERN_SUCCESS) {
                continue;
            }
            const RegistryObject ownedIterator{iterator};
            while (const io_object_t next = IOIteratorNext(iterator)) {
                const RegistryObject entry{next};
                if (auto reading = HIDBatteryReading::read(batteryProperties(entry.object))) {
                    readings.push_back(std::move(*reading));
                }
            }
        }
        return readings;
    }
};

}  // namespace

std::unique_ptr<HIDBatteries> makeMacHIDBatteries() { return std::make_unique<MacHIDBatteries>(); }

}  // namespace quorvane
