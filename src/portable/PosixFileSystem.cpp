#include "portable/PosixFileSystem.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "portable/XmlPropertyList.hpp"

namespace quorvane {

namespace {

std::string reason(int code) {
    return std::strerror(code);
}

FileStatus describe(const struct stat& info) {
    FileStatus status;
    if (S_ISREG(info.st_mode)) {
        status.kind = FileStatus::Kind::file;
    } else if (S_ISDIR(info.st_mode)) {
        status.kind = FileStatus::Kind::directory;
    } else if (S_ISLNK(info.st_mode)) {
        status.kind = FileStatus::Kind::symbolicLink;
    }
    status.size = static_cast<std::uint64_t>(info.st_size);
    status.device = static_cast<std::uint64_t>(info.st_dev);
    status.inode = static_cast<std::uint64_t>(info.st_ino);
    status.linkCount = static_cast<std::uint64_t>(info.st_nlink);
    return status;
}

// A name the Trash does not hold yet: "name", "name.2", "name.3"…
std::filesystem::path freeName(const std::filesystem::path& folder, const std::string& name) {
    std::filesystem::path candidate = folder / name;
    for (int n = 2; std::filesystem::exists(std::filesystem::symlink_status(candidate)); ++n) {
        candidate = folder / (name + "." + std::to_string(n));
    }
    return candidate;
}

}  // namespace

PosixFileSystem::PosixFileSystem(std::string home) : home_(std::move(home)) {
    if (home_.empty()) {
        const char* env = std::getenv("HOME");
        home_ = env != nullptr ? env : "/";
    }
}

std::optional<FileStatus> PosixFileSystem::status(const std::string& path) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0) {
        return std::nullopt;
    }
    return describe(info);
}

std::optional<std::vector<DirectoryEntry>> PosixFileSystem::contents(const std::string& path) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path.c_str()), &::closedir);
    if (!folder) {
        return std::nullopt;
    }
    std::vector<DirectoryEntry> entries;
    while (const dirent* entry = ::readdir(folder.get())) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..") {
            continue;
        }
        struct stat info {};
        if (::fstatat(::dirfd(folder.get()), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0) {
            entries.push_back({name, describe(info)});
        }
    }
    return entries;
}

std::string PosixFileSystem::trashItem(const std::string& path) {
    namespace fs = std::filesystem;
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    const fs::path trash = (dataHome != nullptr && *dataHome != '\0')
                               ? fs::path(dataHome) / "Trash"
                               : fs::path(home_) / ".local/share/Trash";
    std::error_code error;
    fs::create_directories(trash / "files", error);
    fs::create_directories(trash / "info", error);
    const fs::path target = freeName(trash / "files", fs::path(path).filename().string());
    // The record first, so an item in the Trash can always be put back.
    const fs::path record = trash / "info" / (target.filename().string() + ".trashinfo");
    {
        std::ofstream info(record, std::ios::trunc);
        const std::time_t now = std::time(nullptr);
        char date[32] = {};
        std::tm local{};
        ::localtime_r(&now, &local);
        std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &local);
        info << "[Trash Info]\nPath=" << path << "\nDeletionDate=" << date << "\n";
        if (!info) {
            return "cannot write to the Trash at " + trash.string();
        }
    }
    if (::rename(path.c_str(), target.c_str()) != 0) {
        const int code = errno;
        fs::remove(record, error);
        return reason(code);
    }
    return {};
}

std::string PosixFileSystem::moveItem(const std::string& from, const std::string& to) {
    if (status(to)) {
        return "an item named " + std::filesystem::path(to).filename().string() +
               " already exists there";
    }
    return ::rename(from.c_str(), to.c_str()) == 0 ? std::string() : reason(errno);
}

std::string PosixFileSystem::createFile(const std::string& path, const std::string& bytes) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
    if (descriptor < 0) {
        return reason(errno);
    }
    std::size_t written = 0;
    while (written < bytes.size()) {
        const auto n = ::write(descriptor, bytes.data() + written, bytes.size() - written);
        if (n < 0) {
            const int code = errno;
            ::close(descriptor);
            return reason(code);
        }
        written += static_cast<std::size_t>(n);
    }
    return ::close(descriptor) == 0 ? std::string() : reason(errno);
}

std::string PosixFileSystem::createDirectory(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return error ? error.message() : std::string();
}

std::optional<PreferenceValue> PosixFileSystem::readPropertyList(const std::string& path,
                                                                 std::string& error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot be opened";
        return std::nullopt;
    }
    std::ostringstream text;
    text << in.rdbuf();
    return parsePropertyList(text.str(), error);
}

std::optional<PreferenceValue> PosixFileSystem::parsePropertyList(const std::string& bytes,
                                                                  std::string& error) {
    return XmlPropertyList::parse(bytes, error);
}

}  // namespace quorvane
