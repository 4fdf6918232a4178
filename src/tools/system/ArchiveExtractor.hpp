#pragma once

#include <string>
#include <vector>

#include "platform/ArchiveEntry.hpp"

namespace quorvane {

class Archives;

// Lists and extracts archives. Extraction reads the whole archive once to check every member
// before anything is written: one member that would land outside the folder (an absolute
// path, "..", a link pointing out) refuses the whole archive. Existing files are never
// replaced.
class ArchiveExtractor {
public:
    // False, with `error` set, when the archive cannot be read to the end.
    static bool list(Archives& archives, const std::string& archive,
                     std::vector<ArchiveEntry>& entries, std::string& error);
    // Into `folder`, created when missing. `written` receives the relative paths written.
    static bool extract(Archives& archives, const std::string& archive, const std::string& folder,
                        std::vector<std::string>& written, std::string& error);
};

}  // namespace quorvane
