#include "tools/system/DefaultAppChoices.hpp"

#include <algorithm>
#include <cctype>

namespace quorvane {

namespace {

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string folderOf(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

std::string DefaultAppChoices::appName(const std::string& path) {
    std::string name = path;
    while (name.size() > 1 && name.back() == '/') {
        name.pop_back();
    }
    if (const auto slash = name.rfind('/'); slash != std::string::npos) {
        name = name.substr(slash + 1);
    }
    if (name.size() > 4 && name.ends_with(".app")) {
        name.resize(name.size() - 4);
    }
    return name;
}

std::vector<SettingsRow::ChoiceOption> DefaultAppChoices::options(
    const std::optional<std::string>& current, const std::vector<std::string>& candidates) {
    std::vector<std::string> paths = candidates;
    if (current) {
        paths.push_back(*current);
    }
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    std::erase(paths, std::string());
    std::stable_sort(paths.begin(), paths.end(), [](const auto& a, const auto& b) {
        return lowered(appName(a)) < lowered(appName(b));
    });
    std::vector<SettingsRow::ChoiceOption> options;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const std::string name = appName(paths[i]);
        const bool shared = (i > 0 && appName(paths[i - 1]) == name) ||
                            (i + 1 < paths.size() && appName(paths[i + 1]) == name);
        options.push_back({paths[i], shared ? name + " (" + folderOf(paths[i]) + ")" : name});
    }
    return options;
}

bool DefaultAppBackup::recordBefore(const std::string& handler,
                                    const std::optional<std::string>& current) {
    return originals_.try_emplace(handler, current.value_or("")).second;
}

std::vector<std::pair<std::string, std::string>> DefaultAppBackup::restorations(
    const std::map<std::string, std::optional<std::string>>& current) const {
    std::vector<std::pair<std::string, std::string>> changes;
    for (const auto& [handler, original] : originals_) {
        const auto now = current.find(handler);
        const bool alreadyBack = now != current.end() && now->second == original;
        if (!original.empty() && !alreadyBack) {
            changes.emplace_back(handler, original);
        }
    }
    return changes;
}

}  // namespace quorvane
