#include "mac/MacPorts.hpp"

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"

// CFPreferencesSynchronize, CopyValue, SetValue, CopyKeyList and the scope constants are in the
// fact sheet.

namespace quorvane {

namespace {

// The global domain is passed as the exported constant itself rather than an equal string, so
// nothing depends on how CFPreferences compares domain names.
CFRef<CFStringRef> domainName(const std::string& applicationID) {
    if (applicationID == PreferenceDomains::kAnyApplication) {
        return CFRef<CFStringRef>::retain(kCFPreferencesAnyApplication);
    }
    return makeCFString(applicationID);
}

CFStringRef hostName(PreferenceHost host) {
    return host == PreferenceHost::current ? kCFPreferencesCurrentHost : kCFPreferencesAnyHost;
}

// Other programs' preference domains of the current user, through CFPreferences.
class MacPreferenceDomains final : public PreferenceDomains {
public:
    bool synchronize(const std::string& applicationID, PreferenceHost host) override {
        const auto domain = domainName(applicationID);
        if (!domain) {
            return false;
        }
        return CFPreferencesSynchronize(domain.get(), kCFPreferencesCurrentUser, hostName(host));
    }

    std::optional<PreferenceValue> copyValue(const std::string& key,
                                             const std::string& applicationID,
                                             PreferenceHost host) override {
        const auto domain = domainName(applicationID);
        const auto cfKey = makeCFString(key);
        if (!domain || !cfKey) {
            return std::nullopt;
        }
        // No value comes back as NULL, which converts to nothing.
        const auto value = CFRef<CFPropertyListRef>::adopt(CFPreferencesCopyValue(
            cfKey.get(), domain.get(), kCFPreferencesCurrentUser, hostName(host)));
        return fromPropertyList(value.get());
    }

    void setValue(const std::string& key, const std::optional<PreferenceValue>& value,
                  const std::string& applicationID, PreferenceHost host) override {
        const auto domain = domainName(applicationID);
        const auto cfKey = makeCFString(key);
        const auto cfValue = value ? toPropertyList(*value) : CFRef<CFPropertyListRef>();
        // NULL removes the key, so a value that cannot be expressed must not turn into a removal.
        if (!domain || !cfKey || (value && !cfValue)) {
            return;
        }
        CFPreferencesSetValue(cfKey.get(), cfValue.get(), domain.get(), kCFPreferencesCurrentUser,
                              hostName(host));
    }

    std::vector<std::string> copyKeyList(const std::string& applicationID,
                                         PreferenceHost host) override {
        const auto domain = domainName(applicationID);
        if (!domain) {
            return {};
        }
        // No list (NULL) bridges to nil, which holds no keys.
        const auto list = CFRef<CFArrayRef>::adopt(
            CFPreferencesCopyKeyList(domain.get(), kCFPreferencesCurrentUser, hostName(host)));
        return utf8Strings((__bridge NSArray*)list.get());
    }
};

}  // namespace

std::unique_ptr<PreferenceDomains> makeMacPreferenceDomains() {
    return std::make_unique<MacPreferenceDomains>();
}

}  // namespace quorvane
