#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

// One member of an archive, as the archive's header names it (nothing checked yet).
struct ArchiveEntry {
    enum class Type { file, directory, symbolicLink, hardLink, other };
    std::string path;
    Type type = Type::other;
    std::int64_t size = 0;
    // What a link points to, as stored.
    std::string linkTarget;
};

}  // namespace quorvane
