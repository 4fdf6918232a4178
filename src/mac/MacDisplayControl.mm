#include "mac/MacPorts.hpp"

#include <dlfcn.h>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"
#include "platform/DdcServiceChoice.hpp"

// Gamma, from Apple's Quartz Display Services reference (not in the shared fact sheet; check on
// a Mac first): CGDisplayGammaTableCapacity(display) -> uint32_t;
// CGGetDisplayTransferByTable(display, capacity, red, green, blue, &sampleCount) and
// CGSetDisplayTransferByTable(display, size, red, green, blue) -> CGError, CGGammaValue being
// float in 0…1; CGDisplayRestoreColorSyncSettings() puts every display back to its profile.
// unconfirmed: Quartz is said to restore a process's gamma changes when it exits.
//
// DDC: unconfirmed, check on a Mac first. Apple documents no DDC interface for Apple silicon.
// Community tools drive it through IOKit's private IOAVService functions, with these shapes:
//   IOAVServiceRef IOAVServiceCreateWithService(CFAllocatorRef, io_service_t)  (Create rule)
//   IOReturn IOAVServiceWriteI2C(IOAVServiceRef, uint32_t chip, uint32_t offset, void*, uint32_t)
//   IOReturn IOAVServiceReadI2C(IOAVServiceRef, uint32_t chip, uint32_t offset, void*, uint32_t)
// on the registry's "DCPAVServiceProxy" services whose "Location" is "External". Pairing those
// with displays in registry order is a guess: it holds for one external display, and for more
// it is refused rather than risk writing to the wrong monitor (ddcServiceIndex).

namespace quorvane {

namespace {

using AVService = CFTypeRef;
using CreateWithService = AVService (*)(CFAllocatorRef, io_service_t);
using TransferI2C = IOReturn (*)(AVService, std::uint32_t, std::uint32_t, void*, std::uint32_t);

struct AVFunctions {
    CreateWithService create = nullptr;
    TransferI2C write = nullptr;
    TransferI2C read = nullptr;
};

const AVFunctions& avFunctions() {
    static const AVFunctions functions = [] {
        AVFunctions found;
        // RTLD_DEFAULT: IOKit is linked, so its symbols, private ones included, are loaded.
        found.create = reinterpret_cast<CreateWithService>(
            dlsym(RTLD_DEFAULT, "IOAVServiceCreateWithService"));
        found.write = reinterpret_cast<TransferI2C>(dlsym(RTLD_DEFAULT, "IOAVServiceWriteI2C"));
        found.read = reinterpret_cast<TransferI2C>(dlsym(RTLD_DEFAULT, "IOAVServiceReadI2C"));
        return found;
    }();
    return functions;
}

// The external AV services the registry lists, in its order.
std::vector<CFRef<AVService>> externalServices(CreateWithService create) {
    std::vector<CFRef<AVService>> services;
    io_iterator_t iterator = 0;
    if (IOServiceGetMatchingServices(kIOMainPortDefault, IOServiceMatching("DCPAVServiceProxy"),
                                     &iterator) != KERN_SUCCESS) {
        return services;
    }
    while (io_object_t service = IOIteratorNext(iterator)) {
        const auto location = CFRef<CFTypeRef>::adopt(
            IORegistryEntryCreateCFProperty(service, CFSTR("Location"), kCFAllocatorDefault, 0));
        if (location && CFEqual(location.get(), CFSTR("External"))) {
            if (auto av_service = CFRef<AVService>::adopt(create(kCFAllocatorDefault, service))) {
                services.push_back(std::move(av_service));
            }
        }
        IOObjectRelease(service);
    }
    IOObjectRelease(iterator);
    return services;
}

// NSScreen's displays, Quartz's gamma tables, and DDC over the external displays' I2C buses
// through the IOAVService calls macOS uses itself on Apple silicon. Those are not public: they
// are looked up at run time, and every call answers kUnsupported when they are missing.
class MacDisplayControl final : public DisplayControl {
public:
    std::vector<DisplayControl::Display> displays() override {
        @autoreleasepool {
            // The same identifiers, in the same order, as DisplayConfiguration gives.
            const auto keys = makeMacDisplayConfiguration()->displayIDs();
            std::vector<Display> result;
            std::size_t index = 0;
            for (NSScreen* screen in [NSScreen screens]) {
                NSNumber* number = screen.deviceDescription[@"NSScreenNumber"];
                const std::string key = index < keys.size() ? keys[index] : std::string();
                ++index;
                if (![number isKindOfClass:[NSNumber class]]) {
                    continue;
                }
                const auto id = static_cast<std::uint32_t>(number.unsignedIntValue);
                const NSRect frame = screen.frame;
                // unconfirmed: check on a Mac first (-[NSScreen localizedName], macOS 10.15).
                result.push_back({id, key, utf8String(screen.localizedName),
                                  CGDisplayIsBuiltin(id) != 0,
                                  Rect{{frame.origin.x, frame.origin.y},
                                       {frame.size.width, frame.size.height}}});
            }
            return result;
        }
    }

    // The AV service that carries DDC to the display, where one can be told.
    CFRef<AVService> externalService(std::uint32_t display) {
        const AVFunctions& av = avFunctions();
        if (!av.create) {
            return {};
        }
        const auto services = externalServices(av.create);
        const auto index = ddcServiceIndex(display, displays(), services.size());
        return index ? services[*index] : CFRef<AVService>();
    }

    int writeI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                 const std::vector<std::uint8_t>& data) override {
        const auto service = externalService(display);
        if (!service || !avFunctions().write) {
            return kUnsupported;
        }
        std::vector<std::uint8_t> bytes = data;  // the call takes a mutable buffer
        return avFunctions().write(service.get(), chip, offset, bytes.data(),
                                   static_cast<std::uint32_t>(bytes.size()));
    }

    int readI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                std::vector<std::uint8_t>& data) override {
        const auto service = externalService(display);
        if (!service || !avFunctions().read) {
            return kUnsupported;
        }
        return avFunctions().read(service.get(), chip, offset, data.data(),
                                  static_cast<std::uint32_t>(data.size()));
    }

    int gammaTable(std::uint32_t display, GammaTable& table) override {
        const std::uint32_t capacity = CGDisplayGammaTableCapacity(display);
        table = {};
        table.resize(capacity);
        std::uint32_t count = 0;
        const CGError status = CGGetDisplayTransferByTable(
            display, capacity, table.red.data(), table.green.data(), table.blue.data(), &count);
        table.resize(count);
        return static_cast<int>(status);
    }

    int setGammaTable(std::uint32_t display, const GammaTable& table) override {
        return static_cast<int>(
            CGSetDisplayTransferByTable(display, static_cast<std::uint32_t>(table.size()),
                                        table.red.data(), table.green.data(), table.blue.data()));
    }

    void restoreColorSyncSettings() override { CGDisplayRestoreColorSyncSettings(); }
};

}  // namespace

std::unique_ptr<DisplayControl> makeMacDisplayControl() {
    return std::make_unique<MacDisplayControl>();
}

}  // namespace quorvane
