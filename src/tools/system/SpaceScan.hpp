#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvane {

class FileSystem;

// What Free Up Space offers to remove: the items directly inside a fixed set of folders in
// the home folder, sized. It reads only; it never lists anything outside those folders, never
// follows a symbolic link (a folder reached through one is skipped, a link inside is counted
// as itself), and counts a file with several hard links once.
class SpaceScan {
public:
    struct Category {
        const char* id;
        const char* title;
        const char* folder;  // inside the home folder
        // Items here stay where they are: they are already in the Trash, and removing them
        // is for Finder's Empty Trash.
        bool alreadyTrashed = false;
        // The folder holds other programs' caches, filtered by isSafeCache.
        bool filtered = false;
    };
    struct Item {
        std::string category;  // a Category id
        std::string path;
        std::uint64_t bytes = 0;
    };

    static const std::vector<Category>& categories();
    static const Category* category(const std::string& id);

    // Whether an item of a caches or logs folder may go: never the system's own
    // (com.apple.…), never one of an app that is running now (it may be writing it).
    static bool isSafeCache(const std::string& name, const std::vector<std::string>& runningIDs);

    // Items of zero bytes are left out; in category order, then by size, largest first.
    static std::vector<Item> scan(FileSystem& fileSystem, const std::string& home,
                                  const std::vector<std::string>& runningIDs);
    static std::uint64_t total(const std::vector<Item>& items, bool includeTrashed);
};

}  // namespace quorvane
