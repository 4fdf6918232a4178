#pragma once

#include <cstddef>
#include <string>

namespace quorvane {

class FileSystem;

// Moves items to the Trash one by one and sums up what failed, as one line for lastError.
class TrashOutcome {
public:
    bool trash(FileSystem& fileSystem, const std::string& path);
    // Empty when everything went.
    std::string summary() const;

private:
    std::size_t failures_ = 0;
    std::string first_;
};

}  // namespace quorvane
