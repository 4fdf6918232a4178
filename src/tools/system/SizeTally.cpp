#include "tools/system/SizeTally.hpp"

#include <cstdio>

#include "platform/FileSystem.hpp"

namespace quorvane {

namespace {

// Deeper than any real folder; a guard against a loop the listing cannot see.
constexpr int kMaximumDepth = 128;

}  // namespace

std::uint64_t SizeTally::add(const FileStatus& status) {
    if (status.kind == FileStatus::Kind::directory) {
        return 0;
    }
    if (status.linkCount > 1 && !counted_.emplace(status.device, status.inode).second) {
        return 0;
    }
    return status.size;
}

std::uint64_t SizeTally::measure(FileSystem& fileSystem, const std::string& path) {
    const auto status = fileSystem.status(path);
    return status ? measure(fileSystem, path, *status, 0) : 0;
}

std::uint64_t SizeTally::measure(FileSystem& fileSystem, const std::string& path,
                                 const FileStatus& status, int depth) {
    if (status.kind != FileStatus::Kind::directory) {
        return add(status);
    }
    if (depth >= kMaximumDepth) {
        return 0;
    }
    std::uint64_t total = 0;
    for (const auto& entry : fileSystem.contents(path).value_or(std::vector<DirectoryEntry>{})) {
        // A mounted volume inside is not part of this folder's size.
        if (entry.status.device == status.device) {
            total += measure(fileSystem, path + "/" + entry.name, entry.status, depth + 1);
        }
    }
    return total;
}

std::string SizeTally::format(std::uint64_t bytes) {
    // Decimal units, as Finder counts.
    static constexpr const char* kUnits[] = {"KB", "MB", "GB", "TB"};
    if (bytes < 1000) {
        return std::to_string(bytes) + " bytes";
    }
    double value = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    while (value >= 999.95 && unit + 1 < std::size(kUnits)) {
        value /= 1000;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %s", value, kUnits[unit]);
    return text;
}

}  // namespace quorvane
