#pragma once

#include "platform/Archives.hpp"

namespace quorvane {

// Archives through libarchive: the system's own on macOS, the distribution's elsewhere. Every
// format and compression the library was built with is accepted.
class LibArchiveArchives : public Archives {
public:
    bool isAvailable() const override { return true; }
    std::unique_ptr<ArchiveReader> open(const std::string& path, std::string& error) override;
};

}  // namespace quorvane
