#include "portable/LibArchiveArchives.hpp"

#include <archive.h>
#include <archive_entry.h>

namespace quorvane {

namespace {

constexpr std::size_t kBlockSize = 64 * 1024;

class LibArchiveReader : public ArchiveReader {
public:
    explicit LibArchiveReader(archive* handle) : handle_(handle) {}
    ~LibArchiveReader() override { archive_read_free(handle_); }
    LibArchiveReader(const LibArchiveReader&) = delete;
    LibArchiveReader& operator=(const LibArchiveReader&) = delete;

    std::optional<ArchiveEntry> next() override {
        archive_entry* header = nullptr;
        const int status = archive_read_next_header(handle_, &header);
        if (status == ARCHIVE_EOF) {
            return std::nullopt;
        }
        // A warning still yields a usable header (an unknown extended attribute, say).
        if (status < ARCHIVE_WARN) {
            error_ = message();
            return std::nullopt;
        }
        ArchiveEntry entry;
        const char* path = archive_entry_pathname_utf8(header);
        if (path == nullptr) {
            path = archive_entry_pathname(header);
        }
        entry.path = path != nullptr ? path : "";
        entry.size = archive_entry_size(header);
        if (const char* hardLink = archive_entry_hardlink(header)) {
            entry.type = ArchiveEntry::Type::hardLink;
            entry.linkTarget = hardLink;
            return entry;
        }
        switch (archive_entry_filetype(header)) {
            case AE_IFREG:
                entry.type = ArchiveEntry::Type::file;
                break;
            case AE_IFDIR:
                entry.type = ArchiveEntry::Type::directory;
                break;
            case AE_IFLNK: {
                entry.type = ArchiveEntry::Type::symbolicLink;
                const char* target = archive_entry_symlink(header);
                entry.linkTarget = target != nullptr ? target : "";
                break;
            }
            default:
                entry.type = ArchiveEntry::Type::other;
        }
        return entry;
    }

    std::int64_t read(char* buffer, std::size_t size) override {
        const auto n = archive_read_data(handle_, buffer, size);
        if (n < 0) {
            error_ = message();
        }
        return static_cast<std::int64_t>(n);
    }

    std::string error() const override { return error_; }

private:
    std::string message() const {
        const char* text = archive_error_string(handle_);
        return text != nullptr ? text : "the archive is damaged";
    }

    archive* handle_;
    std::string error_;
};

}  // namespace

std::unique_ptr<ArchiveReader> LibArchiveArchives::open(const std::string& path,
                                                        std::string& error) {
    archive* handle = archive_read_new();
    if (handle == nullptr) {
        error = "the archive library could not start";
        return nullptr;
    }
    archive_read_support_filter_all(handle);
    archive_read_support_format_all(handle);
    if (archive_read_open_filename(handle, path.c_str(), kBlockSize) != ARCHIVE_OK) {
        const char* text = archive_error_string(handle);
        error = text != nullptr ? text : "not an archive";
        archive_read_free(handle);
        return nullptr;
    }
    return std::make_unique<LibArchiveReader>(handle);
}

}  // namespace quorvane
