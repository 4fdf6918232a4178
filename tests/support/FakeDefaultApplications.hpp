#pragma once

#include <map>

#include "platform/DefaultApplications.hpp"

namespace quorvane {

// Handlers keyed "type:<content type>" or "scheme:<scheme>". Changes complete at once unless
// `declined` is set, as when the user says no to the system's confirmation.
struct FakeDefaultApplications : DefaultApplications {
    std::map<std::string, std::string> defaults;
    std::map<std::string, std::vector<std::string>> candidates;
    std::vector<std::string> changes;
    std::string declined;

    std::optional<std::string> defaultFor(const std::string& key) {
        const auto found = defaults.find(key);
        return found == defaults.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<std::string> defaultForContentType(const std::string& type) override {
        return defaultFor("type:" + type);
    }
    std::vector<std::string> applicationsForContentType(const std::string& type) override {
        return candidates["type:" + type];
    }
    std::optional<std::string> defaultForURLScheme(const std::string& scheme) override {
        return defaultFor("scheme:" + scheme);
    }
    std::vector<std::string> applicationsForURLScheme(const std::string& scheme) override {
        return candidates["scheme:" + scheme];
    }
    void change(const std::string& key, const std::string& app, const Completion& completion) {
        changes.push_back(key + "=" + app);
        if (declined.empty()) {
            defaults[key] = app;
        }
        completion(declined);
    }
    void setDefaultForContentType(const std::string& app, const std::string& type,
                                  Completion completion) override {
        change("type:" + type, app, completion);
    }
    void setDefaultForURLScheme(const std::string& app, const std::string& scheme,
                                Completion completion) override {
        change("scheme:" + scheme, app, completion);
    }
};

}  // namespace quorvane
