#include "tools/system/SystemStats.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quorvane {

namespace {

std::uint32_t since(std::uint32_t before, std::uint32_t after) {
    return after - before;  // unsigned: wraps exactly as the counter did
}

}  // namespace

StatsReading SystemStats::between(const StatsSample& before, const StatsSample& after) {
    StatsReading reading;
    const double busy = static_cast<double>(since(before.cpu.user, after.cpu.user)) +
                        since(before.cpu.system, after.cpu.system) +
                        since(before.cpu.nice, after.cpu.nice);
    const double total = busy + since(before.cpu.idle, after.cpu.idle);
    reading.cpu = total > 0 ? busy / total : 0;
    reading.memoryUsedBytes = memoryUsed(after.memory);
    reading.memoryTotalBytes = static_cast<double>(after.memory.physicalBytes);
    reading.diskTotalBytes = static_cast<double>(after.disk.totalBytes);
    reading.diskUsedBytes =
        after.disk.availableBytes < after.disk.totalBytes
            ? static_cast<double>(after.disk.totalBytes - after.disk.availableBytes)
            : 0;
    const double seconds = (after.at - before.at).count();
    if (seconds <= 0) {
        return reading;
    }
    double received = 0;
    double sent = 0;
    for (const auto& now : after.interfaces) {
        if (now.loopback) {
            continue;
        }
        const auto then = std::find_if(
            before.interfaces.begin(), before.interfaces.end(),
            [&](const HostStatistics::Interface& old) { return old.name == now.name; });
        if (then == before.interfaces.end()) {
            continue;
        }
        received += since(then->receivedBytes, now.receivedBytes);
        sent += since(then->sentBytes, now.sentBytes);
    }
    reading.receivedPerSecond = received / seconds;
    reading.sentPerSecond = sent / seconds;
    return reading;
}

double SystemStats::memoryUsed(const HostStatistics::Memory& memory) {
    const auto app = memory.internal > memory.purgeable ? memory.internal - memory.purgeable : 0;
    return static_cast<double>(memory.wired + memory.compressed + app) *
           static_cast<double>(memory.pageSize);
}

std::string SystemStats::rate(double bytesPerSecond) {
    static constexpr const char* kUnits[] = {"B/s", "KB/s", "MB/s", "GB/s"};
    double value = std::max(bytesPerSecond, 0.0);
    std::size_t unit = 0;
    while (value >= 999.5 && unit + 1 < std::size(kUnits)) {
        value /= 1000;
        ++unit;
    }
    char text[32];
    // One decimal below 10 in the larger units, where it still says something.
    if (unit > 0 && value < 9.95) {
        std::snprintf(text, sizeof text, "%.1f %s", value, kUnits[unit]);
    } else {
        std::snprintf(text, sizeof text, "%.0f %s", value, kUnits[unit]);
    }
    return text;
}

std::string SystemStats::percent(double fraction) {
    const auto clamped = std::clamp(fraction, 0.0, 1.0);
    return std::to_string(static_cast<int>(std::lround(clamped * 100))) + "%";
}

std::string SystemStats::title(const StatsReading& reading, bool cpu, bool memory, bool network,
                               bool disk) {
    std::string text;
    const auto add = [&text](const std::string& part) { text += (text.empty() ? "" : " ") + part; };
    if (cpu) {
        add("CPU " + percent(reading.cpu));
    }
    if (memory) {
        add("MEM " + percent(reading.memoryTotalBytes > 0
                                 ? reading.memoryUsedBytes / reading.memoryTotalBytes
                                 : 0));
    }
    if (network) {
        add("↓" + rate(reading.receivedPerSecond) + " ↑" + rate(reading.sentPerSecond));
    }
    if (disk) {
        add("SSD " + percent(reading.diskTotalBytes > 0
                                 ? reading.diskUsedBytes / reading.diskTotalBytes
                                 : 0));
    }
    return text;
}

}  // namespace quorvane
