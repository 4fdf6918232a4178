#include "tools/system/CaptureFolder.hpp"

#include <cstdlib>
#include <filesystem>

namespace quorvane {

std::string CaptureFolder::home() {
    const char* home = std::getenv("HOME");
    return home != nullptr ? home : "/";
}

bool CaptureFolder::taken(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::symlink_status(path, error);
    if (error) {
        return error != std::errc::no_such_file_or_directory;
    }
    return status.type() != std::filesystem::file_type::not_found;
}

bool CaptureFolder::isFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

}  // namespace quorvane
