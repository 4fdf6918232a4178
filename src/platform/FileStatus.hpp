#pragma once

#include <cstdint>

namespace quorvane {

// What lstat says about one path: a symbolic link is described itself, never what it points to.
struct FileStatus {
    enum class Kind { file, directory, symbolicLink, other };
    Kind kind = Kind::other;
    // Bytes of content; for a link, the length of the path it holds.
    std::uint64_t size = 0;
    // Together they name the file itself, whatever path reaches it (hard links share them).
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t linkCount = 1;
};

}  // namespace quorvane
