#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// Releases the service IOServiceGetMatchingService handed over, however the lookup ends.
struct ServiceReference {
    io_service_t service;
    ~ServiceReference() {
        if (service != 0) {
            IOObjectRelease(service);
        }
    }
};

// The I/O registry through IOKit: a matching dictionary, one service, one property.
class MacHIDEventServices final : public HIDEventServices {
public:
    std::optional<PreferenceValue> property(std::int64_t vendorID, std::int64_t productID,
                                            const std::string& key) override {
        const auto name = makeCFString(key);
        // unconfirmed: check on a Mac first (CFNumberCreate is not in the fact sheet; its shape is
        // CFNumberCreate(allocator, kCFNumberSInt64Type, &value), a Create).
        const auto vendor = CFRef<CFNumberRef>::adopt(
            CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &vendorID));
        const auto product = CFRef<CFNumberRef>::adopt(
            CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &productID));
        if (!name || !vendor || !product) {
            return std::nullopt;
        }
        // A +1 dictionary; IOServiceGetMatchingService always consumes it, so it is not released
        // here once handed over.
        CFMutableDictionaryRef matching = IOServiceMatching("IOHIDEventService");
        if (!matching) {
            return std::nullopt;
        }
        // unconfirmed: check on a Mac first (CFDictionarySetValue is not in the fact sheet; the
        // dictionary from IOServiceMatching is mutable and retains what is set in it).
        CFDictionarySetValue(matching, CFSTR("VendorID"), vendor.get());
        CFDictionarySetValue(matching, CFSTR("ProductID"), product.get());
        const ServiceReference found{IOServiceGetMatchingService(kIOMainPortDefault, matching)};
        if (found.service == 0) {
            return std::nullopt;
        }
        // A Create: released by the holder. No such property is NULL, which converts to nothing.
        const auto value = CFRef<CFTypeRef>::adopt(
            IORegistryEntryCreateCFProperty(found.service, name.get(), kCFAllocatorDefault, 0));
        return fromPropertyList(value.get());
    }
};

}  // namespace

std::unique_ptr<HIDEventServices> makeMacHIDEventServices() {
    return std::make_unique<MacHIDEventServices>();
}

}  // namespace quorvane
