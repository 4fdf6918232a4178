#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

class Archives;

// `quorvane archive list FILE` and `archive extract FILE [DIR]`, through the system's archive
// library. Extraction refuses an archive with any member that would land outside DIR.
class ArchiveCommand {
public:
    static bool run(const std::vector<std::string>& operands, Archives& archives, std::ostream& out,
                    std::string& error);
    static std::string usage();
};

}  // namespace quorvane
