#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quorvane {

// Where an archive's members may go: only inside the folder being extracted into.
class ArchivePaths {
public:
    // The member's path made relative and tidy ("./a//b/" → "a/b"); nothing when it is
    // absolute, climbs out with "..", or names nothing.
    static std::optional<std::string> inside(const std::string& memberPath);
    // Whether a symbolic link stored at `relativePath` and pointing to `target` still points
    // inside the folder.
    static bool linkStaysInside(const std::string& relativePath, const std::string& target);
    // The folder an archive is extracted into, beside it: "Photos.tar.gz" → "Photos", and
    // "Photos 2", "Photos 3"… when that name is taken.
    static std::string besideFolderName(const std::string& archiveName,
                                        const std::function<bool(const std::string&)>& taken);
};

}  // namespace quorvane
