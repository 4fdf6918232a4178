#include "app/SystemPreferenceDomain.hpp"

#include "platform/PreferenceDomains.hpp"

namespace quorvane {

std::string SystemPreferenceDomain::name() const {
    switch (kind_) {
        case Kind::app:
        case Kind::appThisMac:
            return applicationID_;
        case Kind::dock:
            return "com.apple.dock";
        case Kind::global:
        case Kind::globalThisMac:
            return PreferenceDomains::kAnyApplication;
    }
    return applicationID_;
}

std::string SystemPreferenceDomain::backupKey(const std::string& key) const {
    return "original." + name() + (host() == PreferenceHost::current ? ".host" : "") + "." + key;
}

}  // namespace quorvane
