#pragma once

#include <cerrno>

#include "platform/HostStatistics.hpp"
#include "portable/DiskSpace.hpp"

namespace quorvane {

// The command line reads no counters, which only the Mac's kernel keeps; the disk's space is
// read as anywhere.
class PortableHostStatistics : public HostStatistics {
public:
    int cpuTicks(CpuTicks&) override { return ENOSYS; }
    int memory(Memory&) override { return ENOSYS; }
    int interfaces(std::vector<Interface>&) override { return ENOSYS; }
    int disk(Disk& disk) override { return readDiskSpace("/", disk); }
};

}  // namespace quorvane
