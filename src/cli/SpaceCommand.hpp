#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

class FileSystem;

// `quorvane space scan [--json]`: what Free Up Space would move to the Trash, with sizes.
// It only reads; nothing is removed.
class SpaceCommand {
public:
    // False, with `error` set to one line, on a refusal.
    static bool run(const std::vector<std::string>& operands, FileSystem& fileSystem,
                    std::ostream& out, std::string& error);
    static std::string usage();
};

}  // namespace quorvane
