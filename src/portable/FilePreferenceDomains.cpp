#include "portable/FilePreferenceDomains.hpp"

namespace quorvane {

std::filesystem::path FilePreferenceDomains::file(const std::string& applicationID,
                                                  PreferenceHost host) const {
    std::string name = applicationID;
    if (applicationID == kAnyApplication) {
        name = ".GlobalPreferences";
    } else if (name.empty() || name.front() == '.' || name.find('/') != std::string::npos ||
               name.find('\0') != std::string::npos) {
        return {};
    }
    const std::filesystem::path folder =
        host == PreferenceHost::current ? folder_ / "ByHost" : folder_;
    return folder / (name + ".json");
}

FilePreferenceDomains::Domain FilePreferenceDomains::load(const std::string& applicationID,
                                                          PreferenceHost host) const {
    const auto path = file(applicationID, host);
    if (path.empty()) {
        return {nullptr, "\"" + applicationID + "\" is not a preference domain"};
    }
    Domain loaded;
    loaded.store = FilePreferences::open(path, loaded.error);
    return loaded;
}

FilePreferenceDomains::Domain& FilePreferenceDomains::domain(const std::string& applicationID,
                                                             PreferenceHost host) {
    const DomainKey key{applicationID, host};
    auto found = domains_.find(key);
    if (found == domains_.end()) {
        found = domains_.emplace(key, load(applicationID, host)).first;
    }
    return found->second;
}

bool FilePreferenceDomains::synchronize(const std::string& applicationID, PreferenceHost host) {
    // Changes are written as they are made, so what is left is to report a write that failed
    // and to read the file again for other programs' changes.
    Domain& cached = domain(applicationID, host);
    std::string error = cached.store ? cached.store->lastError() : cached.error;
    cached = load(applicationID, host);
    if (error.empty()) {
        error = cached.error;
    }
    lastError_ = error;
    return error.empty();
}

std::optional<PreferenceValue> FilePreferenceDomains::copyValue(const std::string& key,
                                                                const std::string& applicationID,
                                                                PreferenceHost host) {
    const Domain& cached = domain(applicationID, host);
    return cached.store ? cached.store->object(key) : std::nullopt;
}

void FilePreferenceDomains::setValue(const std::string& key,
                                     const std::optional<PreferenceValue>& value,
                                     const std::string& applicationID, PreferenceHost host) {
    Domain& cached = domain(applicationID, host);
    if (!cached.store) {
        return;
    }
    if (value) {
        cached.store->set(key, *value);
    } else {
        cached.store->remove(key);
    }
}

std::vector<std::string> FilePreferenceDomains::copyKeyList(const std::string& applicationID,
                                                            PreferenceHost host) {
    std::vector<std::string> keys;
    if (const Domain& cached = domain(applicationID, host); cached.store) {
        for (const auto& entry : cached.store->values()) {
            keys.push_back(entry.first);
        }
    }
    return keys;
}

}  // namespace quorvane
