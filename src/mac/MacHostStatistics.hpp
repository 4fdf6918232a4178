#pragma once

#include "platform/HostStatistics.hpp"

namespace quorvane {

// The Mach host's processor and memory statistics, hw.memsize, and getifaddrs' link-level
// interface counters, and statvfs of the startup volume.
class MacHostStatistics final : public HostStatistics {
public:
    int cpuTicks(CpuTicks& ticks) override;
    int memory(Memory& memory) override;
    int interfaces(std::vector<Interface>& interfaces) override;
    int disk(Disk& disk) override;
};

}  // namespace quorvane
