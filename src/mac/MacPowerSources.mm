#include "mac/MacPorts.hpp"

#include <cassert>
#include <memory>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

std::optional<int> integer(NSDictionary* description, NSString* key) {
    NSNumber* value = description[key];
    return [value isKindOfClass:[NSNumber class]] ? std::optional<int>(value.intValue)
                                                  : std::nullopt;
}

std::optional<bool> boolean(NSDictionary* description, NSString* key) {
    NSNumber* value = description[key];
    return [value isKindOfClass:[NSNumber class]] ? std::optional<bool>(value.boolValue)
                                                  : std::nullopt;
}

std::string text(NSDictionary* description, NSString* key) {
    NSString* value = description[key];
    return [value isKindOfClass:[NSString class]] ? utf8String(value) : std::string();
}

void powerSourcesChanged(void* context) {
    assert([NSThread isMainThread]);
    try {
        (*static_cast<std::function<void()>*>(context))();
    } catch (...) {
        // Nothing may unwind into IOKit.
    }
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
        for (CFIndex i = 0; i < CFArrayGetCount(list.get()); ++i) {
            // A Get: the description belongs to the info blob, which outlives this loop.
            const CFDictionaryRef found =
                IOPSGetPowerSourceDescription(info.get(), CFArrayGetValueAtIndex(list.get(), i));
            if (!found) {
                continue;
            }
            NSDictionary* description = (__bridge NSDictionary*)found;
            PowerSourceDescription source;
            source.name = text(description, @kIOPSNameKey);
            source.type = text(description, @kIOPSTypeKey);
            source.powerSourceState = text(description, @kIOPSPowerSourceStateKey);
            source.isPresent = boolean(description, @kIOPSIsPresentKey).value_or(false);
            source.isCharging = boolean(description, @kIOPSIsChargingKey);
            source.currentCapacity = integer(description, @kIOPSCurrentCapacityKey);
            source.maxCapacity = integer(description, @kIOPSMaxCapacityKey);
            sources.push_back(std::move(source));
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
