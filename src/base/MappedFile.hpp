#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

namespace quorvane {

// A file's bytes mapped read-only into memory for as long as the object lives: reading a
// large file this way copies nothing and zero-fills nothing. The bytes must not be relied on
// if another process truncates the file meanwhile; Quorvane only maps files it replaces by
// renaming, which leaves a mapped file as it was.
class MappedFile {
public:
    // Nothing when the file cannot be opened or mapped; an empty file maps to no bytes.
    static std::optional<MappedFile> open(const std::filesystem::path& path);

    MappedFile(MappedFile&& other) noexcept;
    MappedFile& operator=(MappedFile&& other) noexcept;
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile();

    std::string_view bytes() const { return {static_cast<const char*>(address_), size_}; }

private:
    MappedFile(void* address, std::size_t size) : address_(address), size_(size) {}

    void* address_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace quorvane
