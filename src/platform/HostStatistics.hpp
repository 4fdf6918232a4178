#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvane {

// The kernel's running counters of the processor, memory and network interfaces, read as they
// are: the processor ticks (host_statistics, HOST_CPU_LOAD_INFO) and the interface byte counts
// (getifaddrs' if_data) are 32-bit and wrap around. Statuses are kern_return_t or errno, 0 for
// success.
class HostStatistics {
public:
    struct CpuTicks {
        std::uint32_t user = 0;
        std::uint32_t system = 0;
        std::uint32_t idle = 0;
        std::uint32_t nice = 0;
    };
    // host_statistics64 (HOST_VM_INFO64) page counts, host_page_size and hw.memsize.
    struct Memory {
        std::uint64_t pageSize = 0;
        std::uint64_t physicalBytes = 0;
        std::uint64_t wired = 0;
        std::uint64_t compressed = 0;
        std::uint64_t internal = 0;
        std::uint64_t purgeable = 0;
    };
    struct Interface {
        std::string name;
        bool loopback = false;
        std::uint32_t receivedBytes = 0;
        std::uint32_t sentBytes = 0;
    };

    // The startup volume: its size and the space apps can still fill.
    struct Disk {
        std::uint64_t totalBytes = 0;
        std::uint64_t availableBytes = 0;
    };

    virtual ~HostStatistics() = default;

    virtual int cpuTicks(CpuTicks& ticks) = 0;
    virtual int memory(Memory& memory) = 0;
    virtual int interfaces(std::vector<Interface>& interfaces) = 0;
    virtual int disk(Disk& disk) = 0;
};

}  // namespace quorvane
