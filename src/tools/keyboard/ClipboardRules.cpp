#include "tools/keyboard/ClipboardRules.hpp"

#include <algorithm>

#include "tools/keyboard/ClipText.hpp"

namespace quorvane {

bool ClipboardRules::isPrivate(const std::vector<std::vector<std::string>>& itemTypes) {
    for (const auto& types : itemTypes) {
        for (const auto& type : types) {
            if (std::find(kPrivateTypes.begin(), kPrivateTypes.end(), type) !=
                kPrivateTypes.end()) {
                return true;
            }
        }
    }
    return false;
}

bool ClipboardRules::isSkippedApp(const std::optional<std::string>& bundleID,
                                  const std::vector<std::string>& ignoredApps) {
    if (!bundleID) {
        return false;
    }
    return std::find(kPasswordManagers.begin(), kPasswordManagers.end(), *bundleID) !=
               kPasswordManagers.end() ||
           std::find(ignoredApps.begin(), ignoredApps.end(), *bundleID) != ignoredApps.end();
}

bool ClipboardRules::isCleared(const std::optional<std::string>& string,
                               const std::vector<std::string>& types) {
    return (!string || string->empty()) && types.empty();
}

bool ClipboardRules::hasVisibleText(std::string_view text) {
    return !ClipText::trimmed(text).empty();
}

}  // namespace quorvane
