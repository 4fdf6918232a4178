#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/system/AppIdentity.hpp"
#include "tools/system/LeftoverMatcher.hpp"

namespace quorvane {

class FileSystem;
class ProcessFacts;

// What an uninstall would move to the Trash, found through the file system.
class LeftoverScan {
public:
    struct Item {
        std::string path;
        std::uint64_t bytes = 0;
    };

    // The user's Library, then the computer's (never /System).
    static std::vector<std::string> libraries(const std::string& home);

    // `app` names an application by its bundle's path ("…/Maker.app") or its identifier.
    // Nothing, with `error` set, when it cannot be identified.
    static std::optional<AppIdentity> identify(ProcessFacts& facts, const std::string& app,
                                               std::string& error);

    // Every match in `libraries`, in folder order, with sizes (hard links once). The app's
    // own bundle is not among them.
    static std::vector<Item> find(FileSystem& fileSystem, const LeftoverMatcher& matcher,
                                  const std::vector<std::string>& libraries);
};

}  // namespace quorvane
