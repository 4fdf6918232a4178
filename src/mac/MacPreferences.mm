#include "mac/MacPreferences.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"

// The CFPreferences calls are in the fact sheet; the conversions are in MacPropertyList.mm.

namespace quorvane {

namespace {

CFStringRef applicationID() {
    // Created once and kept for the life of the process, so nothing releases it during exit.
    static const CFStringRef identifier = makeCFString(MacPreferences::kApplicationID).detach();
    return identifier;
}

}  // namespace

std::optional<PreferenceValue> MacPreferences::object(std::string_view key) const {
    const CFRef<CFStringRef> cfKey = makeCFString(key);
    if (!cfKey) {
        return std::nullopt;
    }
    // No value comes back as NULL, which converts to nothing.
    const auto value =
        CFRef<CFPropertyListRef>::adopt(CFPreferencesCopyAppValue(cfKey.get(), applicationID()));
    return fromPropertyList(value.get());
}

void MacPreferences::set(std::string_view key, PreferenceValue value) {
    const CFRef<CFStringRef> cfKey = makeCFString(key);
    const CFRef<CFPropertyListRef> cfValue = toPropertyList(value);
    // Setting NULL would delete the key, so a value that cannot be expressed leaves the stored
    // one as it was.
    if (!cfKey || !cfValue) {
        return;
    }
    CFPreferencesSetAppValue(cfKey.get(), cfValue.get(), applicationID());
    CFPreferencesAppSynchronize(applicationID());
}

void MacPreferences::remove(std::string_view key) {
    const CFRef<CFStringRef> cfKey = makeCFString(key);
    if (!cfKey) {
        return;
    }
    CFPreferencesSetAppValue(cfKey.get(), nullptr, applicationID());
    CFPreferencesAppSynchronize(applicationID());
}

}  // namespace quorvane
