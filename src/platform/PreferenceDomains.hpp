#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PreferenceHost.hpp"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

// Other programs' preference domains of the current user, shaped like CFPreferences: a domain is
// an application identifier ("com.apple.dock") or kAnyApplication for the global domain, and a
// host scope. Reads and writes go through a cache; synchronize writes pending changes and picks
// up other programs' writes.
class PreferenceDomains {
public:
    // The global domain's name, which is also the string value of kCFPreferencesAnyApplication.
    static constexpr const char* kAnyApplication = "kCFPreferencesAnyApplication";

    virtual ~PreferenceDomains() = default;

    // CFPreferencesSynchronize: false when pending changes could not be saved or the domain
    // could not be read.
    virtual bool synchronize(const std::string& applicationID, PreferenceHost host) = 0;
    // CFPreferencesCopyValue: nothing when the key is absent.
    virtual std::optional<PreferenceValue> copyValue(const std::string& key,
                                                     const std::string& applicationID,
                                                     PreferenceHost host) = 0;
    // CFPreferencesSetValue: nothing removes the key.
    virtual void setValue(const std::string& key, const std::optional<PreferenceValue>& value,
                          const std::string& applicationID, PreferenceHost host) = 0;
    // CFPreferencesCopyKeyList: every key the domain holds, in no particular order.
    virtual std::vector<std::string> copyKeyList(const std::string& applicationID,
                                                 PreferenceHost host) = 0;
    // Why the last synchronize failed, when the implementation knows; empty otherwise.
    virtual std::string lastError() const { return {}; }
};

}  // namespace quorvane
