#pragma once

#include "platform/HostStatistics.hpp"

namespace quorvane {

// statvfs of a volume, which macOS and other systems answer alike: its size, and the space
// left to ordinary processes (without the part only the superuser may fill). errno on failure.
int readDiskSpace(const char* path, HostStatistics::Disk& disk);

}  // namespace quorvane
