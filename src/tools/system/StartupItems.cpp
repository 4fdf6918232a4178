#include "tools/system/StartupItems.hpp"

#include <algorithm>

#include "platform/FileSystem.hpp"

namespace quorvane {

namespace {

std::string fileName(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

std::string joined(const std::string& folder, const std::string& name) {
    return folder.ends_with("/") ? folder + name : folder + "/" + name;
}

}  // namespace

std::string StartupItems::disabledFolder(const std::string& home) {
    return home + "/Library/Application Support/Quorvane/Disabled Launch Agents";
}

std::vector<StartupItems::Folder> StartupItems::folders(const std::string& home,
                                                        const std::string& root) {
    using Scope = StartupItem::Scope;
    return {{home + "/Library/LaunchAgents", Scope::userAgent, false},
            {disabledFolder(home), Scope::userAgent, true},
            {joined(root, "Library/LaunchAgents"), Scope::systemAgent, false},
            {joined(root, "Library/LaunchDaemons"), Scope::systemDaemon, false}};
}

StartupItem StartupItems::describe(const std::string& path, const Folder& folder,
                                   const std::optional<PreferenceValue>& list,
                                   const std::string& error) {
    StartupItem item;
    item.path = path;
    item.scope = folder.scope;
    item.disabled = folder.disabled;
    std::string name = fileName(path);
    item.label = name.ends_with(".plist") ? name.substr(0, name.size() - 6) : name;
    const auto* dictionary = list ? list->dictionary() : nullptr;
    if (dictionary == nullptr) {
        item.problem = list ? "not a launchd job" : "unreadable: " + error;
        return item;
    }
    const auto text = [&](const char* key) -> const std::string* {
        const auto found = dictionary->find(key);
        return found == dictionary->end() ? nullptr : found->second.string();
    };
    if (const auto* label = text("Label"); label != nullptr && !label->empty()) {
        item.label = *label;
    }
    if (const auto* program = text("Program")) {
        item.program = *program;
    } else if (const auto found = dictionary->find("ProgramArguments");
               found != dictionary->end() && found->second.array() != nullptr &&
               !found->second.array()->empty()) {
        if (const auto* first = found->second.array()->front().string()) {
            item.program = *first;
        }
    }
    if (const auto found = dictionary->find("Disabled");
        found != dictionary->end() && found->second.boolean() != nullptr) {
        item.disabled = item.disabled || *found->second.boolean();
    }
    return item;
}

std::vector<StartupItem> StartupItems::list(FileSystem& fileSystem, const std::string& home,
                                            const std::string& root) {
    std::vector<StartupItem> items;
    for (const auto& folder : folders(home, root)) {
        for (const auto& entry :
             fileSystem.contents(folder.path).value_or(std::vector<DirectoryEntry>{})) {
            if (!entry.name.ends_with(".plist") || entry.name.starts_with("com.apple.") ||
                entry.status.kind != FileStatus::Kind::file) {
                continue;
            }
            const std::string path = folder.path + "/" + entry.name;
            std::string error;
            const auto list = fileSystem.readPropertyList(path, error);
            auto item = describe(path, folder, list, error);
            if (!item.label.starts_with("com.apple.")) {
                items.push_back(std::move(item));
            }
        }
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const auto& a, const auto& b) { return a.label < b.label; });
    return items;
}

std::string StartupItems::setEnabled(FileSystem& fileSystem, const std::string& home,
                                     const StartupItem& item, bool enabled) {
    if (!item.isUsers()) {
        return item.label + " belongs to the whole computer; switching it needs an administrator";
    }
    const auto all = folders(home);
    const std::string to = (enabled ? all[0].path : all[1].path) + "/" + fileName(item.path);
    if (to == item.path) {
        return {};
    }
    if (!enabled) {
        // The folder is Quorvane's own, made on first use.
        if (auto error = fileSystem.createDirectory(disabledFolder(home)); !error.empty()) {
            return error;
        }
    }
    return fileSystem.moveItem(item.path, to);
}

}  // namespace quorvane
