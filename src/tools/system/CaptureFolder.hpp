#pragma once

#include <string>

namespace quorvane {

// The file system as captures see it: where "~" is, and whether a name is free.
class CaptureFolder {
public:
    static std::string home();
    // Whether something is at a path already; a path that cannot be checked counts as taken,
    // so a capture never risks overwriting it.
    static bool taken(const std::string& path);
    static bool isFolder(const std::string& path);
};

}  // namespace quorvane
