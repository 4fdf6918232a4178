#include "audio/WavFile.hpp"

#include <cerrno>
#include <cstring>

#include "audio/WavError.hpp"

namespace quorvane {

WavFile::WavFile(const std::filesystem::path& path, const char* mode)
    : path_(path), file_(std::fopen(path.c_str(), mode)) {
    if (!file_) {
        throw WavError(failure("open"));
    }
}

void WavFile::close() {
    if (std::fclose(file_.release()) != 0) {
        throw WavError(failure("write"));
    }
}

std::string WavFile::failure(const char* verb) const {
    const int error = errno;
    return std::string("cannot ") + verb + " " + path_.string() + ": " +
           (error != 0 ? std::strerror(error) : "unknown error");
}

}  // namespace quorvane
