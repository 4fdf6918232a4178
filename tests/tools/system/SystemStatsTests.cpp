#include "tools/system/SystemStats.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

constexpr std::uint32_t kTop = std::numeric_limits<std::uint32_t>::max();

StatsSample sample(double at, HostStatistics::CpuTicks cpu,
                   std::vector<HostStatistics::Interface> interfaces = {}) {
    StatsSample result;
    result.at = Seconds{at};
    result.cpu = cpu;
    result.interfaces = std::move(interfaces);
    return result;
}

TEST(SystemStats, DeltasSurviveCounterWrapAround) {
    // Every counter passes 2^32 between the samples.
    const auto before =
        sample(10, {kTop - 9, kTop - 4, kTop - 49, kTop}, {{"en0", false, kTop - 999, kTop}});
    const auto after = sample(12, {20, 5, 50, 10}, {{"en0", false, 1001, 3999}});
    const auto reading = SystemStats::between(before, after);
    // busy 30 + 10 + 11 = 51 of 51 + 100 ticks.
    EXPECT_DOUBLE_EQ(reading.cpu, 51.0 / 151.0);
    EXPECT_DOUBLE_EQ(reading.receivedPerSecond, 2001.0 / 2);
    EXPECT_DOUBLE_EQ(reading.sentPerSecond, 4000.0 / 2);
}

TEST(SystemStats, OnlyInterfacesSeenTwiceAndNotLoopbackCount) {
    const auto before = sample(0, {}, {{"en0", false, 100, 100}, {"lo0", true, 0, 0}});
    const auto after = sample(
        2, {}, {{"en0", false, 300, 100}, {"lo0", true, 9000, 9000}, {"utun4", false, 5000, 5000}});
    const auto reading = SystemStats::between(before, after);
    EXPECT_DOUBLE_EQ(reading.receivedPerSecond, 100);
    EXPECT_DOUBLE_EQ(reading.sentPerSecond, 0);
    EXPECT_DOUBLE_EQ(reading.cpu, 0) << "no ticks passed: nothing to divide";
    // Two samples at the same moment give no speed rather than a division by zero.
    EXPECT_DOUBLE_EQ(SystemStats::between(after, after).receivedPerSecond, 0);
}

TEST(SystemStats, MemoryCountsWhatAppsCannotHaveBackAtOnce) {
    HostStatistics::Memory memory{16384, 16ull << 30, 100, 50, 1000, 200};
    EXPECT_DOUBLE_EQ(SystemStats::memoryUsed(memory), (100 + 50 + 800) * 16384.0);
    memory.purgeable = 5000;  // more purgeable than internal, as the counters can briefly say
    EXPECT_DOUBLE_EQ(SystemStats::memoryUsed(memory), 150 * 16384.0);
}

TEST(SystemStats, FormatsTheTitle) {
    EXPECT_EQ(SystemStats::rate(0), "0 B/s");
    EXPECT_EQ(SystemStats::rate(999), "999 B/s");
    EXPECT_EQ(SystemStats::rate(999.6), "1.0 KB/s");
    EXPECT_EQ(SystemStats::rate(34'400), "34 KB/s");
    EXPECT_EQ(SystemStats::rate(1'234'567), "1.2 MB/s");
    EXPECT_EQ(SystemStats::rate(5e12), "5000 GB/s");
    EXPECT_EQ(SystemStats::percent(1.7), "100%");
    StatsReading reading{0.123, 8e9, 16e9, 34'400, 1'234'567};
    EXPECT_EQ(SystemStats::title(reading, true, true, true, false),
              "CPU 12% MEM 50% ↓34 KB/s ↑1.2 MB/s");
    EXPECT_EQ(SystemStats::title(reading, false, true, false, false), "MEM 50%");
    EXPECT_EQ(SystemStats::title(StatsReading{}, false, true, false, true), "MEM 0% SSD 0%")
        << "a disk that reported no size reads as empty, not as a division by zero";
}

}  // namespace
}  // namespace quorvane
