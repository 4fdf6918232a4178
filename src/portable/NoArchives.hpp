#pragma once

#include "platform/Archives.hpp"

namespace quorvane {

// A build without an archive library: every archive is refused, saying so.
class NoArchives : public Archives {
public:
    static constexpr const char* kUnavailable =
        "archives are unavailable: this build of Quorvane has no archive library (libarchive)";

    bool isAvailable() const override { return false; }
    std::unique_ptr<ArchiveReader> open(const std::string&, std::string& error) override {
        error = kUnavailable;
        return nullptr;
    }
};

}  // namespace quorvane
