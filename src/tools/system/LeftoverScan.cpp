#include "tools/system/LeftoverScan.hpp"

#include <algorithm>

#include "platform/FileSystem.hpp"
#include "platform/ProcessFacts.hpp"
#include "tools/system/SizeTally.hpp"

namespace quorvane {

std::vector<std::string> LeftoverScan::libraries(const std::string& home) {
    return {home + "/Library", "/Library"};
}

std::optional<AppIdentity> LeftoverScan::identify(ProcessFacts& facts, const std::string& app,
                                                  std::string& error) {
    std::string path = app;
    while (path.size() > 1 && path.ends_with("/")) {
        path.pop_back();
    }
    if (path.find('/') != std::string::npos) {
        if (!path.ends_with(".app")) {
            error = path + " is not an app (…/Name.app)";
            return std::nullopt;
        }
        const auto id = facts.bundleIdentifier(path);
        if (!id || id->empty()) {
            error = "cannot read the bundle identifier of " + path;
            return std::nullopt;
        }
        return AppIdentity{*id, facts.displayName(path), path};
    }
    // An identifier such as "com.maker.app" may itself end in ".app": only a slash makes a path.
    if (app.find('.') == std::string::npos) {
        error = "\"" + app + "\" is neither an app (…/Name.app) nor a bundle identifier";
        return std::nullopt;
    }
    const auto bundle = facts.applicationPath(app);
    return AppIdentity{app, bundle ? facts.displayName(*bundle) : std::string(),
                       bundle.value_or("")};
}

std::vector<LeftoverScan::Item> LeftoverScan::find(FileSystem& fileSystem,
                                                   const LeftoverMatcher& matcher,
                                                   const std::vector<std::string>& libraries) {
    std::vector<Item> items;
    SizeTally tally;
    for (const auto& library : libraries) {
        for (const auto& folder : LeftoverMatcher::folders()) {
            const std::string parent = library + "/" + folder.path;
            // A folder replaced by a link could lead anywhere: only real folders are searched.
            const auto status = fileSystem.status(parent);
            if (!status || status->kind != FileStatus::Kind::directory) {
                continue;
            }
            auto entries = fileSystem.contents(parent).value_or(std::vector<DirectoryEntry>{});
            std::sort(entries.begin(), entries.end(),
                      [](const auto& a, const auto& b) { return a.name < b.name; });
            for (const auto& entry : entries) {
                if (matcher.belongs(folder.rule, entry.name)) {
                    const std::string path = parent + "/" + entry.name;
                    items.push_back({path, tally.measure(fileSystem, path)});
                }
            }
        }
    }
    return items;
}

}  // namespace quorvane
