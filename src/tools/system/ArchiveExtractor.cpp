#include "tools/system/ArchiveExtractor.hpp"

#include <filesystem>
#include <fstream>

#include "platform/Archives.hpp"
#include "tools/system/ArchivePaths.hpp"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

// Why a member may not be written; empty when it may.
std::string refusal(const ArchiveEntry& entry) {
    const auto relative = ArchivePaths::inside(entry.path);
    if (!relative) {
        return "\"" + entry.path + "\" would be written outside the folder";
    }
    if (entry.type == ArchiveEntry::Type::symbolicLink &&
        !ArchivePaths::linkStaysInside(*relative, entry.linkTarget)) {
        return "the link \"" + entry.path + "\" points outside the folder";
    }
    if (entry.type == ArchiveEntry::Type::hardLink && !ArchivePaths::inside(entry.linkTarget)) {
        return "the link \"" + entry.path + "\" points outside the folder";
    }
    return {};
}

bool writeFile(ArchiveReader& reader, const fs::path& target, std::string& error) {
    if (fs::exists(fs::symlink_status(target))) {
        error = target.string() + " already exists";
        return false;
    }
    std::ofstream out(target, std::ios::binary);
    char buffer[kBufferSize];
    for (;;) {
        const auto n = reader.read(buffer, sizeof buffer);
        if (n < 0) {
            error = reader.error();
            return false;
        }
        if (n == 0) {
            break;
        }
        out.write(buffer, n);
    }
    if (!out) {
        error = "cannot write " + target.string();
        return false;
    }
    return true;
}

}  // namespace

bool ArchiveExtractor::list(Archives& archives, const std::string& archive,
                            std::vector<ArchiveEntry>& entries, std::string& error) {
    auto reader = archives.open(archive, error);
    if (!reader) {
        return false;
    }
    while (auto entry = reader->next()) {
        entries.push_back(std::move(*entry));
    }
    error = reader->error();
    return error.empty();
}

bool ArchiveExtractor::extract(Archives& archives, const std::string& archive,
                               const std::string& folder, std::vector<std::string>& written,
                               std::string& error) {
    std::vector<ArchiveEntry> entries;
    if (!list(archives, archive, entries, error)) {
        return false;
    }
    for (const auto& entry : entries) {
        if (auto why = refusal(entry); !why.empty()) {
            error = "refused: " + why + "; nothing was extracted";
            return false;
        }
    }
    auto reader = archives.open(archive, error);
    if (!reader) {
        return false;
    }
    const fs::path root(folder);
    std::error_code failure;
    fs::create_directories(root, failure);
    if (failure) {
        error = "cannot create " + folder + ": " + failure.message();
        return false;
    }
    // Links last, so no member is ever written through a link the archive made.
    std::vector<ArchiveEntry> links;
    while (auto entry = reader->next()) {
        const std::string relative = *ArchivePaths::inside(entry->path);
        const fs::path target = root / relative;
        fs::create_directories(target.parent_path(), failure);
        switch (entry->type) {
            case ArchiveEntry::Type::directory:
                fs::create_directories(target, failure);
                break;
            case ArchiveEntry::Type::file:
                if (!writeFile(*reader, target, error)) {
                    return false;
                }
                break;
            case ArchiveEntry::Type::symbolicLink:
            case ArchiveEntry::Type::hardLink:
                links.push_back(*entry);
                continue;
            case ArchiveEntry::Type::other:
                continue;  // devices and pipes are not made from an archive
        }
        if (failure) {
            error = "cannot create " + target.string() + ": " + failure.message();
            return false;
        }
        written.push_back(relative);
    }
    if (!reader->error().empty()) {
        error = reader->error();
        return false;
    }
    for (const auto& link : links) {
        const std::string relative = *ArchivePaths::inside(link.path);
        const fs::path target = root / relative;
        if (link.type == ArchiveEntry::Type::symbolicLink) {
            fs::create_symlink(link.linkTarget, target, failure);
        } else {
            fs::create_hard_link(root / *ArchivePaths::inside(link.linkTarget), target, failure);
        }
        if (failure) {
            error = "cannot create " + target.string() + ": " + failure.message();
            return false;
        }
        written.push_back(relative);
    }
    return true;
}

}  // namespace quorvane
