#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/DirectoryEntry.hpp"
#include "platform/FileStatus.hpp"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

// The file system as the file tools use it: listing with sizes, moving to the Trash, and
// property-list files. Paths are absolute, in UTF-8. Operations that change something answer
// an empty string on success and the system's reason otherwise.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    // The user's home folder (NSHomeDirectory; $HOME elsewhere).
    virtual std::string homeDirectory() = 0;
    // lstat: nothing when the path does not exist or cannot be examined.
    virtual std::optional<FileStatus> status(const std::string& path) = 0;
    // The names in a folder without "." and "..", each as status describes it; nothing when the
    // folder cannot be read.
    virtual std::optional<std::vector<DirectoryEntry>> contents(const std::string& path) = 0;
    // NSFileManager's trashItemAtURL:resultingItemURL:error:.
    virtual std::string trashItem(const std::string& path) = 0;
    // Moves an item within a volume; refuses to replace anything already at `to`.
    virtual std::string moveItem(const std::string& from, const std::string& to) = 0;
    // A new file holding `bytes`; refuses when anything is at the path already.
    virtual std::string createFile(const std::string& path, const std::string& bytes) = 0;
    // A folder with any missing folders above it; success when it exists already.
    virtual std::string createDirectory(const std::string& path) = 0;
    // The property list a file holds; nothing, with `error` set, when it cannot be read or
    // parsed.
    virtual std::optional<PreferenceValue> readPropertyList(const std::string& path,
                                                            std::string& error) = 0;
};

}  // namespace quorvane
