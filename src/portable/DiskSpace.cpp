#include "portable/DiskSpace.hpp"

#include <sys/statvfs.h>

#include <cerrno>

namespace quorvane {

int readDiskSpace(const char* path, HostStatistics::Disk& disk) {
    struct statvfs volume {};
    if (::statvfs(path, &volume) != 0) {
        return errno;
    }
    // f_frsize is the unit of the block counts; f_bsize is only the preferred I/O size.
    disk.totalBytes = static_cast<std::uint64_t>(volume.f_blocks) * volume.f_frsize;
    disk.availableBytes = static_cast<std::uint64_t>(volume.f_bavail) * volume.f_frsize;
    return 0;
}

}  // namespace quorvane
