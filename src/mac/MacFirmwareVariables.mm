#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// NVRAM variables as the I/O Registry's "options" node shows them to any user.
class MacFirmwareVariables final : public FirmwareVariables {
public:
    std::optional<std::string> value(const std::string& name) override {
        // unconfirmed: check on a Mac first (IORegistryEntryFromPath and the
        // "IODeviceTree:/options" node, where nvram itself reads variables, are not in the fact
        // sheet).
        const io_registry_entry_t options =
            IORegistryEntryFromPath(kIOMainPortDefault, "IODeviceTree:/options");
        if (options == IO_OBJECT_NULL) {
            return std::nullopt;
        }
        const auto key = makeCFString(name);
        const auto property = CFRef<CFTypeRef>::adopt(
            IORegistryEntryCreateCFProperty(options, key.get(), kCFAllocatorDefault, kNilOptions));
        IOObjectRelease(options);
        const auto converted = fromPropertyList(property.get());
        return converted ? bytes(*converted) : std::nullopt;
    }
};

}  // namespace

std::unique_ptr<FirmwareVariables> makeMacFirmwareVariables() {
    return std::make_unique<MacFirmwareVariables>();
}

}  // namespace quorvane
