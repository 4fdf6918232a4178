#include "tools/system/TrashOutcome.hpp"

#include "platform/FileSystem.hpp"

namespace quorvane {

bool TrashOutcome::trash(FileSystem& fileSystem, const std::string& path) {
    const std::string error = fileSystem.trashItem(path);
    if (error.empty()) {
        return true;
    }
    if (failures_++ == 0) {
        first_ = path + ": " + error;
    }
    return false;
}

std::string TrashOutcome::summary() const {
    if (failures_ == 0) {
        return {};
    }
    return failures_ == 1 ? "Couldn't move " + first_
                          : "Couldn't move " + std::to_string(failures_) +
                                " items to the Trash, the first " + first_;
}

}  // namespace quorvane
