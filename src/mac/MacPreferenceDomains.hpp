#pragma once

#include "platform/PreferenceDomains.hpp"

namespace quorvane {

// Other programs' preference domains of the current user, through CFPreferences.
class MacPreferenceDomains final : public PreferenceDomains {
public:
    bool synchronize(const std::string& applicationID, PreferenceHost host) override;
    std::optional<PreferenceValue> copyValue(const std::string& key,
                                             const std::string& applicationID,
                                             PreferenceHost host) override;
    void setValue(const std::string& key, const std::optional<PreferenceValue>& value,
                  const std::string& applicationID, PreferenceHost host) override;
    std::vector<std::string> copyKeyList(const std::string& applicationID,
                                         PreferenceHost host) override;
};

}  // namespace quorvane
