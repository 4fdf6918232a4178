#include "cli/ArchiveCommand.hpp"

#include <filesystem>
#include <ostream>

#include "platform/Archives.hpp"
#include "tools/system/ArchiveExtractor.hpp"
#include "tools/system/ArchivePaths.hpp"

namespace quorvane {

bool ArchiveCommand::run(const std::vector<std::string>& operands, Archives& archives,
                         std::ostream& out, std::string& error) {
    const bool list = operands.size() == 2 && operands[0] == "list";
    const bool extract = (operands.size() == 2 || operands.size() == 3) && operands[0] == "extract";
    if (!list && !extract) {
        error = "usage: quorvane archive list FILE | extract FILE [DIR]";
        return false;
    }
    if (!archives.isAvailable()) {
        archives.open(operands[1], error);
        return false;
    }
    if (list) {
        std::vector<ArchiveEntry> entries;
        const bool complete = ArchiveExtractor::list(archives, operands[1], entries, error);
        for (const auto& entry : entries) {
            out << entry.path;
            if (entry.type == ArchiveEntry::Type::directory && !entry.path.ends_with("/")) {
                out << "/";
            } else if (entry.type == ArchiveEntry::Type::symbolicLink) {
                out << " -> " << entry.linkTarget;
            } else if (entry.type == ArchiveEntry::Type::hardLink) {
                out << " link to " << entry.linkTarget;
            } else if (entry.type == ArchiveEntry::Type::file) {
                out << "\t" << entry.size;
            }
            out << "\n";
        }
        return complete;
    }
    namespace fs = std::filesystem;
    const fs::path archive = fs::absolute(operands[1]);
    fs::path folder;
    if (operands.size() == 3) {
        folder = fs::absolute(operands[2]);
    } else {
        folder = archive.parent_path() /
                 ArchivePaths::besideFolderName(
                     archive.filename().string(), [&](const std::string& name) {
                         return fs::exists(fs::symlink_status(archive.parent_path() / name));
                     });
    }
    std::vector<std::string> written;
    if (!ArchiveExtractor::extract(archives, archive.string(), folder.string(), written, error)) {
        return false;
    }
    out << "Extracted " << written.size() << (written.size() == 1 ? " item" : " items") << " into "
        << folder.string() << "\n";
    return true;
}

std::string ArchiveCommand::usage() {
    return "  archive list FILE          the members of an archive (zip, tar, 7z, RAR…)\n"
           "  archive extract FILE [DIR] unpack it into DIR, or a new folder beside it\n";
}

}  // namespace quorvane
