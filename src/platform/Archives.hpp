#pragma once

#include <memory>
#include <string>

#include "platform/ArchiveReader.hpp"

namespace quorvane {

// Reading archives of every format the system's archive library knows (zip, tar, 7z, RAR…).
class Archives {
public:
    virtual ~Archives() = default;

    // False in a build without the archive library.
    virtual bool isAvailable() const = 0;
    // nullptr, with `error` set, when the file cannot be opened as an archive.
    virtual std::unique_ptr<ArchiveReader> open(const std::string& path, std::string& error) = 0;
};

}  // namespace quorvane
