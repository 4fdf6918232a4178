#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "platform/FileStatus.hpp"

namespace quorvane {

class FileSystem;

// Adds up what files take, the way removing them would free it: a file reached through
// several hard links counts once, a symbolic link counts as itself and is never followed, and
// a folder is the sum of what is inside it.
class SizeTally {
public:
    // What this file adds to the total: nothing for a file already counted.
    std::uint64_t add(const FileStatus& status);
    // Everything under `path`, added to this tally, without leaving its volume.
    std::uint64_t measure(FileSystem& fileSystem, const std::string& path);

    static std::string format(std::uint64_t bytes);

private:
    std::uint64_t measure(FileSystem& fileSystem, const std::string& path, const FileStatus& status,
                          int depth);

    std::set<std::pair<std::uint64_t, std::uint64_t>> counted_;
};

}  // namespace quorvane
