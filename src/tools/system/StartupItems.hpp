#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PreferenceValue.hpp"
#include "tools/system/StartupItem.hpp"

namespace quorvane {

class FileSystem;

// The launch agents and daemons that start at login or startup. The system's own
// (com.apple.…) are not listed. A user's agent is switched off by moving its list into
// Quorvane's folder of disabled agents, where launchd does not look, and on again by moving it
// back; the others need an administrator and are only shown.
class StartupItems {
public:
    struct Folder {
        std::string path;
        StartupItem::Scope scope;
        bool disabled;
    };

    // The folders searched: the user's agents, the ones Quorvane switched off, the computer's
    // agents and daemons (`root` is "/" except in tests).
    static std::vector<Folder> folders(const std::string& home, const std::string& root = "/");
    static std::string disabledFolder(const std::string& home);

    // One item from its list as read; a damaged list still gives an item, with the problem.
    static StartupItem describe(const std::string& path, const Folder& folder,
                                const std::optional<PreferenceValue>& list,
                                const std::string& error);
    // Every item, sorted by label, the system's own left out.
    static std::vector<StartupItem> list(FileSystem& fileSystem, const std::string& home,
                                         const std::string& root = "/");
    // Switches a user's item off or on; empty on success, otherwise why not.
    static std::string setEnabled(FileSystem& fileSystem, const std::string& home,
                                  const StartupItem& item, bool enabled);
};

}  // namespace quorvane
