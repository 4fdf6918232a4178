#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/ArchiveEntry.hpp"

namespace quorvane {

// One archive open for reading, entry by entry, as libarchive's read API goes.
class ArchiveReader {
public:
    virtual ~ArchiveReader() = default;

    // archive_read_next_header: nothing at the end, or on a damaged header (then error()
    // says why).
    virtual std::optional<ArchiveEntry> next() = 0;
    // archive_read_data into `buffer`: bytes read, 0 at the end of the entry, negative on
    // damage.
    virtual std::int64_t read(char* buffer, std::size_t size) = 0;
    // Empty while nothing went wrong.
    virtual std::string error() const = 0;
};

}  // namespace quorvane
