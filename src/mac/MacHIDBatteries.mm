#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
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

CFRef<CFTypeRef> property(io_registry_entry_t entry, CFStringRef key) {
    return CFRef<CFTypeRef>::adopt(
        IORegistryEntryCreateCFProperty(entry, key, kCFAllocatorDefault, 0));
}

std::string text(io_registry_entry_t entry, CFStringRef key) {
    const auto value = property(entry, key);
    return value && CFGetTypeID(value.get()) == CFStringGetTypeID()
               ? utf8String(static_cast<CFStringRef>(value.get()))
               : std::string();
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
                const auto percent = property(entry.object, CFSTR("BatteryPercent"));
                int value = 0;
                if (!percent || CFGetTypeID(percent.get()) != CFNumberGetTypeID() ||
                    !CFNumberGetValue(static_cast<CFNumberRef>(percent.get()), kCFNumberIntType,
                                      &value)) {
                    continue;
                }
                auto serial = text(entry.object, CFSTR("SerialNumber"));
                if (serial.empty()) {
                    serial = text(entry.object, CFSTR("DeviceAddress"));
                }
                readings.push_back({text(entry.object, CFSTR("Product")), serial, value});
            }
        }
        return readings;
    }
};

}  // namespace

std::unique_ptr<HIDBatteries> makeMacHIDBatteries() { return std::make_unique<MacHIDBatteries>(); }

}  // namespace quorvane
