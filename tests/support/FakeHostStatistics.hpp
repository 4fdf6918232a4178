#pragma once

#include <vector>

#include "platform/HostStatistics.hpp"

namespace quorvane {

// Counters a test sets and advances, the number of readings taken, and a status to answer.
struct FakeHostStatistics : HostStatistics {
    CpuTicks ticks;
    Memory memoryNow{16384, 16ull << 30, 0, 0, 0, 0};
    std::vector<Interface> interfacesNow;
    int status = 0;
    int readings = 0;

    int cpuTicks(CpuTicks& out) override {
        ++readings;
        out = ticks;
        return status;
    }
    int memory(Memory& out) override {
        out = memoryNow;
        return status;
    }
    int interfaces(std::vector<Interface>& out) override {
        out = interfacesNow;
        return status;
    }
    Disk diskNow{500'000'000'000, 125'000'000'000};
    int disk(Disk& out) override {
        out = diskNow;
        return status;
    }
};

}  // namespace quorvane
