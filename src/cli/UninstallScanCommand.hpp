#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

class FileSystem;
class ProcessFacts;

// `quorvane uninstall-scan APP`: the app and the leftovers an uninstall would move to the
// Trash, with sizes. It only reads.
class UninstallScanCommand {
public:
    static bool run(const std::vector<std::string>& operands, FileSystem& fileSystem,
                    ProcessFacts& facts, std::ostream& out, std::string& error);
    static std::string usage();
};

}  // namespace quorvane
