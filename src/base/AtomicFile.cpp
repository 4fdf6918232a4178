#include "base/AtomicFile.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quorvane {

namespace {

[[maybe_unused]] constexpr off_t kKickSize = off_t{1} << 20;

}  // namespace

bool writeFileAtomically(const std::filesystem::path& path,
                         const std::function<bool(const ByteSink& sink)>& produce,
                         std::string& error) {
    std::string temporary = path.string() + ".XXXXXX";
    // mkstemp creates the file 0600 already; fchmod states it for any libc.
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0) {
        error = "cannot write " + path.string() + ": " + std::strerror(errno);
        return false;
    }
    bool ok = ::fchmod(fd, 0600) == 0;
    int savedErrno = ok ? 0 : errno;
    [[maybe_unused]] off_t started = 0;
    const ByteSink sink = [&](std::string_view bytes) {
        while (ok && !bytes.empty()) {
            const ssize_t written = ::write(fd, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) {
                continue;
            }
            ok = written > 0;
            savedErrno = ok ? 0 : errno;
            bytes.remove_prefix(ok ? static_cast<std::size_t>(written) : 0);
        }
#if defined(__linux__)
        // The flush before the rename would otherwise wait for the whole file at once; asking
        // the disk for each megabyte as it is written lets it work while the rest is made.
        const off_t total = ok ? ::lseek(fd, 0, SEEK_CUR) : 0;
        if (total - started >= kKickSize) {
            ::sync_file_range(fd, started, total - started, SYNC_FILE_RANGE_WRITE);
            started = total;
        }
#endif
        return ok;
    };
    if (ok && !produce(sink)) {
        ok = false;
        savedErrno = savedErrno != 0 ? savedErrno : ECANCELED;
    }
    if (ok && ::fsync(fd) != 0) {
        ok = false;
        savedErrno = errno;
    }
    if (::close(fd) != 0 && ok) {
        ok = false;
        savedErrno = errno;
    }
    if (!ok || std::rename(temporary.c_str(), path.c_str()) != 0) {
        error = "cannot write " + path.string() + ": " + std::strerror(ok ? errno : savedErrno);
        ::unlink(temporary.c_str());
        return false;
    }
    return true;
}

bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes,
                         std::string& error) {
    return writeFileAtomically(
        path, [bytes](const ByteSink& sink) { return sink(bytes); }, error);
}

}  // namespace quorvane
