#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/PreferenceDomains.hpp"

namespace quorvane {

// Foreign domains in memory. Every call is recorded in order; `values` is what a real domain
// would hold on disk (tests seed and inspect it directly); synchronize fails for the domains in
// `unsavable`.
struct FakePreferenceDomains : PreferenceDomains {
    enum class Operation { synchronize, copyValue, setValue, copyKeyList };
    struct Call {
        Operation operation;
        std::string applicationID;
        PreferenceHost host;
        std::string key;                       // empty for synchronize and copyKeyList
        std::optional<PreferenceValue> value;  // what setValue was given
    };
    using DomainKey = std::pair<std::string, PreferenceHost>;

    std::map<DomainKey, std::map<std::string, PreferenceValue>> values;
    std::set<DomainKey> unsavable;
    std::vector<Call> calls;

    std::optional<PreferenceValue> stored(const std::string& key, const std::string& applicationID,
                                          PreferenceHost host = PreferenceHost::any) const {
        const auto domain = values.find({applicationID, host});
        if (domain == values.end()) {
            return std::nullopt;
        }
        const auto found = domain->second.find(key);
        return found != domain->second.end() ? std::optional(found->second) : std::nullopt;
    }
    void store(const std::string& key, PreferenceValue value, const std::string& applicationID,
               PreferenceHost host = PreferenceHost::any) {
        values[{applicationID, host}].insert_or_assign(key, std::move(value));
    }
    std::size_t count(Operation operation) const {
        std::size_t n = 0;
        for (const auto& call : calls) {
            n += call.operation == operation ? 1 : 0;
        }
        return n;
    }

    bool synchronize(const std::string& applicationID, PreferenceHost host) override {
        calls.push_back({Operation::synchronize, applicationID, host, {}, std::nullopt});
        return !unsavable.contains({applicationID, host});
    }
    std::optional<PreferenceValue> copyValue(const std::string& key,
                                             const std::string& applicationID,
                                             PreferenceHost host) override {
        calls.push_back({Operation::copyValue, applicationID, host, key, std::nullopt});
        return stored(key, applicationID, host);
    }
    void setValue(const std::string& key, const std::optional<PreferenceValue>& value,
                  const std::string& applicationID, PreferenceHost host) override {
        calls.push_back({Operation::setValue, applicationID, host, key, value});
        if (value) {
            store(key, *value, applicationID, host);
        } else if (const auto domain = values.find({applicationID, host}); domain != values.end()) {
            domain->second.erase(key);
        }
    }
    std::vector<std::string> copyKeyList(const std::string& applicationID,
                                         PreferenceHost host) override {
        calls.push_back({Operation::copyKeyList, applicationID, host, {}, std::nullopt});
        std::vector<std::string> keys;
        if (const auto domain = values.find({applicationID, host}); domain != values.end()) {
            for (const auto& entry : domain->second) {
                keys.push_back(entry.first);
            }
        }
        return keys;
    }
};

}  // namespace quorvane
