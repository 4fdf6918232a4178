#include "tools/system/SpaceScan.hpp"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "platform/FileSystem.hpp"
#include "tools/system/SizeTally.hpp"

namespace quorvane {

namespace {

bool equalFolded(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

// The folder, reached one component at a time from the home folder without passing through
// a link; false when any step is missing or is not a real folder.
bool isRealFolder(FileSystem& fileSystem, const std::string& home, const std::string& inside) {
    std::string path = home;
    std::istringstream components(inside);
    for (std::string component; std::getline(components, component, '/');) {
        path += "/" + component;
        const auto status = fileSystem.status(path);
        if (!status || status->kind != FileStatus::Kind::directory) {
            return false;
        }
    }
    return true;
}

}  // namespace

const std::vector<SpaceScan::Category>& SpaceScan::categories() {
    static const std::vector<Category> kCategories = {
        {"caches", "App caches", "Library/Caches", false, true},
        {"logs", "Logs", "Library/Logs", false, true},
        {"trash", "Trash", ".Trash", true, false},
        {"derived-data", "Xcode build files", "Library/Developer/Xcode/DerivedData"},
        {"device-support", "iOS device support files", "Library/Developer/Xcode/iOS DeviceSupport"},
        {"watch-device-support", "watchOS device support files",
         "Library/Developer/Xcode/watchOS DeviceSupport"},
        {"simulator-caches", "Simulator caches", "Library/Developer/CoreSimulator/Caches"},
        {"npm", "npm cache", ".npm/_cacache"},
        {"gradle", "Gradle caches", ".gradle/caches"},
        {"cargo", "Cargo download cache", ".cargo/registry/cache"},
        {"tool-caches", "Command-line tool caches", ".cache"},
    };
    return kCategories;
}

const SpaceScan::Category* SpaceScan::category(const std::string& id) {
    for (const auto& known : categories()) {
        if (id == known.id) {
            return &known;
        }
    }
    return nullptr;
}

bool SpaceScan::isSafeCache(const std::string& name, const std::vector<std::string>& runningIDs) {
    std::string lowered = name;
    std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (lowered.starts_with("com.apple.") || lowered.starts_with(".")) {
        return false;
    }
    return std::none_of(runningIDs.begin(), runningIDs.end(),
                        [&](const std::string& id) { return equalFolded(id, name); });
}

std::vector<SpaceScan::Item> SpaceScan::scan(FileSystem& fileSystem, const std::string& home,
                                             const std::vector<std::string>& runningIDs) {
    std::vector<Item> items;
    SizeTally tally;
    for (const auto& kind : categories()) {
        if (!isRealFolder(fileSystem, home, kind.folder)) {
            continue;
        }
        const std::string folder = home + "/" + kind.folder;
        std::vector<Item> found;
        for (const auto& entry :
             fileSystem.contents(folder).value_or(std::vector<DirectoryEntry>{})) {
            if (kind.filtered && !isSafeCache(entry.name, runningIDs)) {
                continue;
            }
            const std::string path = folder + "/" + entry.name;
            if (const auto bytes = tally.measure(fileSystem, path); bytes > 0) {
                found.push_back({kind.id, path, bytes});
            }
        }
        std::sort(found.begin(), found.end(), [](const Item& a, const Item& b) {
            return a.bytes != b.bytes ? a.bytes > b.bytes : a.path < b.path;
        });
        items.insert(items.end(), found.begin(), found.end());
    }
    return items;
}

std::uint64_t SpaceScan::total(const std::vector<Item>& items, bool includeTrashed) {
    std::uint64_t sum = 0;
    for (const auto& item : items) {
        const Category* kind = category(item.category);
        if (includeTrashed || kind == nullptr || !kind->alreadyTrashed) {
            sum += item.bytes;
        }
    }
    return sum;
}

}  // namespace quorvane
