#include "mac/MacPorts.hpp"

#include <cassert>
#include <memory>

#include "base/CallWithoutUnwinding.hpp"
#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"

namespace quorvane {

namespace {

static_assert(PowerSourceDescription::kNameKey == kIOPSNameKey &&
              PowerSourceDescription::kTypeKey == kIOPSTypeKey &&
              PowerSourceDescription::kStateKey == kIOPSPowerSourceStateKey &&
              PowerSourceDescription::kIsPresentKey == kIOPSIsPresentKey &&
              PowerSourceDescription::kIsChargingKey == kIOPSIsChargingKey &&
              PowerSourceDescription::kCurrentCapacityKey == kIOPSCurrentCapacityKey &&
              PowerSourceDescription::kMaxCapacityKey == kIOPSMaxCapacityKey &&
              std::string_view(PowerSourceDescription::kInternalBattery) ==
                  kIOPSInternalBatteryType &&
              std::string_view(PowerSourceDescription::kACPower) == kIOPSACPowerValue);

void powerSourcesChanged(void* context) {
    assert([NSThread isMainThread]);
    callWithoutUnwinding(*static_cast<std::function<void()>*>(context));
}

// IOKit's power-source API.
class MacPowerSources final : public PowerSources {
public:
    std::vector<PowerSourceDescription> powerSources() override {
        std::vector<PowerSourceDescription> sources;
        const auto info = CFRef<CFTypeRef>::adopt(IOPSCopyPowerSourcesInfo());
        if (!info) {
            return sources;
        }
        const auto list = CFRef<CFArrayRef>::adopt(IOPSCopyPowerSourcesList(info.get()));
        if (!list) {
            return sources;
        }
        for (const void* source : arrayValues(list.get())) {
            // A Get: the description belongs to the info blob, which outlives this loop.
            const CFDictionaryRef found = IOPSGetPowerSourceDescription(info.get(), source);
            const auto description = fromPropertyList(found);
            if (description && description->dictionary()) {
                sources.push_back(PowerSourceDescription::read(*description->dictionary()));
            }
        }
        return sources;
    }

    Subscription observeChanges(std::function<void()> handler) override {
        auto context = std::make_shared<std::function<void()>>(std::move(handler));
        auto source = CFRef<CFRunLoopSourceRef>::adopt(
            IOPSNotificationCreateRunLoopSource(&powerSourcesChanged, context.get()));
        if (!source) {
            return {};
        }
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
        // The source is removed before the handler it points to is released.
        return Subscription([source, context] {
            CFRunLoopRemoveSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
        });
    }
};

}  // namespace

std::unique_ptr<PowerSources> makeMacPowerSources() { return std::make_unique<MacPowerSources>(); }

}  // namespace quorvane
