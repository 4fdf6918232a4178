#include "base/MappedFile.hpp"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace quorvane {

std::optional<MappedFile> MappedFile::open(const std::filesystem::path& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return std::nullopt;
    }
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        return std::nullopt;
    }
    const auto size = static_cast<std::size_t>(info.st_size);
    if (size == 0) {
        ::close(fd);
        return MappedFile(nullptr, 0);
    }
    void* address = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    // The mapping keeps the file's pages; the descriptor is no longer needed.
    ::close(fd);
    if (address == MAP_FAILED) {
        return std::nullopt;
    }
    return MappedFile(address, size);
}

MappedFile::MappedFile(MappedFile&& other) noexcept
    : address_(std::exchange(other.address_, nullptr)), size_(std::exchange(other.size_, 0)) {}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
    if (this != &other) {
        MappedFile old(std::move(*this));
        address_ = std::exchange(other.address_, nullptr);
        size_ = std::exchange(other.size_, 0);
    }
    return *this;
}

MappedFile::~MappedFile() {
    if (address_ != nullptr) {
        ::munmap(address_, size_);
    }
}

}  // namespace quorvane
