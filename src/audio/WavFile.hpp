#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace quorvane {

// An open C file that closes itself. Reads and writes go through stdio's buffer, and a failure
// carries the system's reason (errno) into the message.
class WavFile {
public:
    WavFile(const std::filesystem::path& path, const char* mode);

    std::FILE* get() const { return file_.get(); }
    // Closes the file, reporting what a failed flush or close says (a full disk, for one).
    void close();
    // "cannot <verb> <path>: <reason>".
    std::string failure(const char* verb) const;

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::filesystem::path path_;
    std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace quorvane
