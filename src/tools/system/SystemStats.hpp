#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/HostStatistics.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

// One reading of the kernel's counters, and when it was taken.
struct StatsSample {
    Seconds at{0};
    HostStatistics::CpuTicks cpu;
    HostStatistics::Memory memory;
    std::vector<HostStatistics::Interface> interfaces;
    HostStatistics::Disk disk;
};

// What the menu bar shows: the share of the processor in use and the network's speed over the
// time between two samples, and the memory and disk space in use at the second.
struct StatsReading {
    double cpu = 0;  // 0…1
    double memoryUsedBytes = 0;
    double memoryTotalBytes = 0;
    double receivedPerSecond = 0;
    double sentPerSecond = 0;
    double diskUsedBytes = 0;
    double diskTotalBytes = 0;
};

struct SystemStats {
    // Counters are subtracted modulo 2^32, so a wrap between the samples still gives the
    // distance travelled; an interface seen in only one sample counts nothing.
    static StatsReading between(const StatsSample& before, const StatsSample& after);
    // The memory an app can't have back at once: wired, compressed, and app memory that is not
    // purgeable, as Activity Monitor counts it.
    static double memoryUsed(const HostStatistics::Memory& memory);
    // "0 B/s", "512 B/s", "34 KB/s", "1.2 MB/s", "3.4 GB/s" (powers of 1000, as Finder shows).
    static std::string rate(double bytesPerSecond);
    static std::string percent(double fraction);
    // The item's title: "CPU 12% MEM 63% ↓34 KB/s ↑1.2 MB/s SSD 41%", for the parts chosen.
    static std::string title(const StatsReading& reading, bool cpu, bool memory, bool network,
                             bool disk);
};

}  // namespace quorvane
