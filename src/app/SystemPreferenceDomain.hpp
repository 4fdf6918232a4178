#pragma once

#include <string>

#include "platform/PreferenceHost.hpp"

namespace quorvane {

// A foreign preference domain as Quorvane's tools name it: an application's domain, the Dock's,
// or the global domain, for every Mac of the user or for this Mac only. Some settings live only
// in an application's this-Mac preferences (Image Capture's hot-plug switch), hence appThisMac.
class SystemPreferenceDomain {
public:
    enum class Kind { app, dock, global, globalThisMac, appThisMac };

    static SystemPreferenceDomain app(std::string applicationID) {
        return {Kind::app, std::move(applicationID)};
    }
    static SystemPreferenceDomain dock() { return {Kind::dock, {}}; }
    static SystemPreferenceDomain global() { return {Kind::global, {}}; }
    static SystemPreferenceDomain globalThisMac() { return {Kind::globalThisMac, {}}; }
    static SystemPreferenceDomain appThisMac(std::string applicationID) {
        return {Kind::appThisMac, std::move(applicationID)};
    }

    Kind kind() const { return kind_; }
    // The domain's name: the application identifier, "com.apple.dock", or the global domain's
    // name (kCFPreferencesAnyApplication's string) for both global cases.
    std::string name() const;
    PreferenceHost host() const {
        return kind_ == Kind::globalThisMac || kind_ == Kind::appThisMac ? PreferenceHost::current
                                                                         : PreferenceHost::any;
    }
    // "original.<name>[.host].<key>": where the user's own value is kept while ours is in force.
    std::string backupKey(const std::string& key) const;

    friend bool operator==(const SystemPreferenceDomain&, const SystemPreferenceDomain&) = default;

private:
    SystemPreferenceDomain(Kind kind, std::string applicationID)
        : kind_(kind), applicationID_(std::move(applicationID)) {}

    Kind kind_;
    std::string applicationID_;
};

}  // namespace quorvane
