#pragma once

#include <cerrno>

#include "platform/HostStatistics.hpp"

namespace quorvane {

// The command line reads no counters: every request is refused as unsupported.
class PortableHostStatistics : public HostStatistics {
public:
    int cpuTicks(CpuTicks&) override { return ENOSYS; }
    int memory(Memory&) override { return ENOSYS; }
    int interfaces(std::vector<Interface>&) override { return ENOSYS; }
};

}  // namespace quorvane
