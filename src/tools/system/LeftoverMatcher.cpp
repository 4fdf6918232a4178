#include "tools/system/LeftoverMatcher.hpp"

#include <algorithm>
#include <cctype>

namespace quorvane {

namespace {

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool isSystemName(const std::string& lowered) {
    return lowered.starts_with("com.apple.");
}

// The name without the suffixes the system adds to an identifier.
std::string stem(std::string name) {
    static constexpr const char* kSuffixes[] = {".lockfile", ".plist", ".savedstate",
                                                ".binarycookies"};
    for (const char* suffix : kSuffixes) {
        if (name.ends_with(suffix)) {
            name.resize(name.size() - std::char_traits<char>::length(suffix));
        }
    }
    return name;
}

// A hardware UUID ("564D…-…") or the older twelve hex digits of a MAC address.
bool isHostKey(const std::string& text) {
    const bool hexOrDash = !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return std::isxdigit(static_cast<unsigned char>(c)) || c == '-';
    });
    return hexOrDash && (text.size() == 36 || text.size() == 12);
}

// A team identifier: ten upper-case letters and digits (lowered here).
bool isTeamID(const std::string& text) {
    return text.size() == 10 && std::all_of(text.begin(), text.end(), [](char c) {
               return std::isdigit(static_cast<unsigned char>(c)) ||
                      std::islower(static_cast<unsigned char>(c));
           });
}

}  // namespace

const std::vector<LeftoverMatcher::Folder>& LeftoverMatcher::folders() {
    static const std::vector<Folder> kFolders = {
        {"Application Support", Rule::identifierOrName},
        {"Caches", Rule::identifierOrName},
        {"Containers", Rule::identifier},
        {"Group Containers", Rule::groupContainer},
        {"Preferences", Rule::identifier},
        {"Preferences/ByHost", Rule::preferencesByHost},
        {"Saved Application State", Rule::identifier},
        {"HTTPStorages", Rule::identifier},
        {"WebKit", Rule::identifier},
        {"Logs", Rule::identifierOrName},
        {"LaunchAgents", Rule::identifier},
    };
    return kFolders;
}

LeftoverMatcher::LeftoverMatcher(AppIdentity app, std::vector<AppIdentity> others)
    : app_(std::move(app)), others_(std::move(others)) {
    std::erase_if(others_, [&](const AppIdentity& other) {
        return lower(other.bundleID) == lower(app_.bundleID);
    });
}

std::string LeftoverMatcher::refusal() const {
    if (app_.bundleID.empty()) {
        return "the app has no bundle identifier, so its files cannot be told apart";
    }
    if (isSystemName(lower(app_.bundleID))) {
        return (app_.name.empty() ? app_.bundleID : app_.name) + " is part of macOS";
    }
    return {};
}

bool LeftoverMatcher::belongs(Rule rule, const std::string& name) const {
    if (!refusal().empty() || isSystemName(lower(name)) || !matches(app_, rule, name)) {
        return false;
    }
    return std::none_of(others_.begin(), others_.end(), [&](const AppIdentity& other) {
        return !other.bundleID.empty() && matches(other, rule, name);
    });
}

bool LeftoverMatcher::matches(const AppIdentity& app, Rule rule, const std::string& name) {
    const std::string id = lower(app.bundleID);
    const std::string entry = lower(name);
    switch (rule) {
        case Rule::identifier:
            return stem(entry) == id;
        case Rule::identifierOrName:
            // By name only when it is the whole folder name, in the folders apps name so.
            return stem(entry) == id || (!app.name.empty() && entry == lower(app.name));
        case Rule::preferencesByHost: {
            const std::string base = stem(entry);
            const auto dot = base.rfind('.');
            return dot != std::string::npos && base.substr(0, dot) == id &&
                   isHostKey(base.substr(dot + 1));
        }
        case Rule::groupContainer: {
            const auto dot = entry.find('.');
            if (dot == std::string::npos || entry.substr(dot + 1) != id) {
                return false;
            }
            const std::string owner = entry.substr(0, dot);
            return owner == "group" || isTeamID(owner);
        }
    }
    return false;
}

}  // namespace quorvane
