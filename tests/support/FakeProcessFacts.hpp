#pragma once

#include <map>
#include <string>

#include "portable/PortableProcessFacts.hpp"

namespace quorvane {

// Processes and bundles from tables; names compare like the portable implementation's.
struct FakeProcessFacts : PortableProcessFacts {
    std::map<int, std::string> executables;
    std::map<int, std::string> names;
    std::map<std::string, std::string> applications;  // bundle identifier → bundle path
    std::map<std::string, std::string> bundleIDs;     // bundle path → identifier
    std::map<std::pair<std::string, std::string>, std::string> infoStrings;  // (URL, key) → value

    std::optional<std::string> executablePath(int pid) override { return find(executables, pid); }
    std::string processName(int pid) override { return find(names, pid).value_or(""); }
    std::optional<std::string> applicationPath(const std::string& bundleID) override {
        return find(applications, bundleID);
    }
    // The file name without ".app", as Finder shows it with extensions hidden.
    std::string displayName(const std::string& path) override {
        std::string name = path.substr(path.find_last_of('/') + 1);
        return name.ends_with(".app") ? name.substr(0, name.size() - 4) : name;
    }
    std::optional<std::string> bundleIdentifier(const std::string& path) override {
        return find(bundleIDs, path);
    }
    std::optional<std::string> infoString(const std::string& bundleURL,
                                          const std::string& key) override {
        return find(infoStrings, std::pair(bundleURL, key));
    }

private:
    template <typename Map, typename Key>
    static std::optional<std::string> find(const Map& map, const Key& key) {
        const auto found = map.find(key);
        return found == map.end() ? std::nullopt : std::optional(found->second);
    }
};

}  // namespace quorvane
