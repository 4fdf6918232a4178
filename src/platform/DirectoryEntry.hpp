#pragma once

#include <string>

#include "platform/FileStatus.hpp"

namespace quorvane {

// One name in a folder, described as lstat describes it.
struct DirectoryEntry {
    std::string name;
    FileStatus status;
};

}  // namespace quorvane
