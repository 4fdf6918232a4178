#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/PreferenceDomains.hpp"
#include "portable/FilePreferences.hpp"

namespace quorvane {

// Foreign preference domains as JSON files in one folder, laid out like the user's Preferences
// folder on a Mac: "<folder>/<application id>.json" for any host, "<folder>/ByHost/<application
// id>.json" for this host only, ".GlobalPreferences" standing for the global domain. Each file
// is a FilePreferences store, so it is written atomically and a damaged file is refused (reads
// give nothing, writes are dropped, synchronize answers false) and never overwritten.
class FilePreferenceDomains : public PreferenceDomains {
public:
    explicit FilePreferenceDomains(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // The file that holds a domain; empty for an identifier that cannot name a file.
    std::filesystem::path file(const std::string& applicationID, PreferenceHost host) const;

    bool synchronize(const std::string& applicationID, PreferenceHost host) override;
    std::optional<PreferenceValue> copyValue(const std::string& key,
                                             const std::string& applicationID,
                                             PreferenceHost host) override;
    void setValue(const std::string& key, const std::optional<PreferenceValue>& value,
                  const std::string& applicationID, PreferenceHost host) override;
    std::vector<std::string> copyKeyList(const std::string& applicationID,
                                         PreferenceHost host) override;
    std::string lastError() const override { return lastError_; }

private:
    struct Domain {
        std::unique_ptr<FilePreferences> store;  // empty when the file was refused
        std::string error;
    };
    using DomainKey = std::pair<std::string, PreferenceHost>;

    Domain& domain(const std::string& applicationID, PreferenceHost host);
    Domain load(const std::string& applicationID, PreferenceHost host) const;

    std::filesystem::path folder_;
    std::map<DomainKey, Domain> domains_;
    std::string lastError_;
};

}  // namespace quorvane
